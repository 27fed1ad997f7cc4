#include "support/BareForm.h"
#include "support/MarkingTranslator.h"
#include "support/TestMain.h"

#include <QSet>

Q_DECLARE_METATYPE(QMargins)

namespace {

struct Control {
    const char* name;
    const char* className;
    const char* parent;
    const char* text;
};

// The form's members have the toolkit's own types.
constexpr QStackedWidget* Ui_CTradeConfigWidget::*topStack = &Ui_CTradeConfigWidget::stackedWidget;
constexpr QLabel* Ui_CTradeConfigWidget::*rowLabel = &Ui_CTradeConfigWidget::label_14;

// clang-format off
constexpr Control controls[] = {
    {"widget", "QWidget", "CTradeConfigWidget", nullptr},
    {"stackedWidget", "QStackedWidget", "CTradeConfigWidget", nullptr},
    {"line_16", "QFrame", "CTradeConfigWidget", nullptr},
    {"widget_2", "QWidget", "CTradeConfigWidget", nullptr},
    {"pushButton_cancle", "QPushButton", "widget_2", "取消"},
    {"pushButton_confirm", "QPushButton", "widget_2", "确定"},

    {"page", "QWidget", "stackedWidget", nullptr},
    {"widget_system", "CNavWidget", "page", nullptr},
    {"stackedWidget_system", "QStackedWidget", "page", nullptr},
    {"page_3", "QWidget", "stackedWidget_system", nullptr},
    {"label", "QLabel", "page_3", "委托时输入"},
    {"line_2", "QFrame", "page_3", nullptr},
    {"label_2", "QLabel", "page_3", "买入时委托输入："},
    {"comboBox_system_buy_type", "QComboBox", "page_3", nullptr},
    {"label_3", "QLabel", "page_3", "卖出时委托输入："},
    {"comboBox_system_sell_type", "QComboBox", "page_3", nullptr},
    {"label_4", "QLabel", "page_3", "默认页面"},
    {"line_3", "QFrame", "page_3", nullptr},
    {"label_5", "QLabel", "page_3", "登录后默认页面："},
    {"comboBox_system_defaultView", "QComboBox", "page_3", nullptr},
    {"label_6", "QLabel", "page_3", "锁屏和解锁"},
    {"line_4", "QFrame", "page_3", nullptr},
    {"label_7", "QLabel", "page_3", "界面不操作超过多久锁屏(分)："},
    {"lineEdit_system_lockTime", "QLineEdit", "page_3", ""},
    {"label_8", "QLabel", "page_3", "买卖方式"},
    {"line_5", "QFrame", "page_3", nullptr},
    {"label_9", "QLabel", "page_3", "默认买入方式："},
    {"comboBox_system_buyType", "QComboBox", "page_3", nullptr},
    {"label_22", "QLabel", "page_3", "默认卖出方式："},
    {"comboBox_system_sellType", "QComboBox", "page_3", nullptr},
    {"label_35", "QLabel", "page_3", "(修改后重启生效)"},
    {"label_42", "QLabel", "page_3", "(修改后重启生效)"},
    {"page_4", "QWidget", "stackedWidget_system", nullptr},
    {"label_10", "QLabel", "page_4", "行情代码联动"},
    {"line_6", "QFrame", "page_4", nullptr},
    {"label_12", "QLabel", "page_4", "行情代码跟随委托代码："},
    {"comboBox_system_hqLink", "QComboBox", "page_4", nullptr},
    {"label_11", "QLabel", "page_4", "委托代码跟随行情代码："},
    {"comboBox_system_hqLink2", "QComboBox", "page_4", nullptr},
    {"page_5", "QWidget", "stackedWidget_system", nullptr},
    {"label_13", "QLabel", "page_5", "行情交易界面"},
    {"line_7", "QFrame", "page_5", nullptr},
    {"label_15", "QLabel", "page_5", "行情交易界面言语："},
    {"comboBox_system_language", "QComboBox", "page_5", nullptr},
    {"label_scale", "QLabel", "page_5", "交易界面缩放比例："},
    {"spinBox_scale", "QSpinBox", "page_5", "100%"},
    {"label_14", "QLabel", "page_5", "行情交易界面字体："},
    {"comboBox_system_fontSize", "QComboBox", "page_5", nullptr},

    {"page_2", "QWidget", "stackedWidget", nullptr},
    {"widget_trade", "CNavWidget", "page_2", nullptr},
    {"stackedWidget_trade", "QStackedWidget", "page_2", nullptr},
    {"page_6", "QWidget", "stackedWidget_trade", nullptr},
    {"label_16", "QLabel", "page_6", "买入卖出"},
    {"line_8", "QFrame", "page_6", nullptr},
    {"label_17", "QLabel", "page_6", "默认买入价格："},
    {"comboBox_trade_buyPrice", "QComboBox", "page_6", nullptr},
    {"label_18", "QLabel", "page_6", "默认买入数量："},
    {"comboBox_trade_buyCount", "QComboBox", "page_6", nullptr},
    {"label_31", "QLabel", "page_6", "默认卖出价格："},
    {"comboBox_trade_sellPrice", "QComboBox", "page_6", nullptr},
    {"label_32", "QLabel", "page_6", "默认卖出数量："},
    {"comboBox_trade_sellCount", "QComboBox", "page_6", nullptr},
    {"label_19", "QLabel", "page_6", "买卖后界面"},
    {"line_9", "QFrame", "page_6", nullptr},
    {"label_20", "QLabel", "page_6", "买卖后界面设置："},
    {"comboBox_trade_wt", "QComboBox", "page_6", nullptr},
    {"label_21", "QLabel", "page_6", "响应点击"},
    {"line_10", "QFrame", "page_6", nullptr},
    {"checkBox_trade_pk", "QCheckBox", "page_6", "响应点击买卖盘数量"},
    {"label_23", "QLabel", "page_6", "买卖输入框"},
    {"line_11", "QFrame", "page_6", nullptr},
    {"label_24", "QLabel", "page_6", "买卖页面输入框默认状态："},
    {"comboBox_trade_lineEdit", "QComboBox", "page_6", nullptr},
    {"page_7", "QWidget", "stackedWidget_trade", nullptr},
    {"label_25", "QLabel", "page_7", "提示框"},
    {"line_12", "QFrame", "page_7", nullptr},
    {"checkBox_trade_cancle", "QCheckBox", "page_7", "撤单前需要确认"},
    {"checkBox_trade_wt", "QCheckBox", "page_7", "委托前需要确认"},
    {"checkBox_trade_wtDlg", "QCheckBox", "page_7", "委托成功后弹出提示对话框"},
    {"page_8", "QWidget", "stackedWidget_trade", nullptr},
    {"label_28", "QLabel", "page_8", "分仓设置"},
    {"line_13", "QFrame", "page_8", nullptr},
    {"checkBox_trade_fc", "QCheckBox", "page_8", "启用股票自动分仓"},
    {"label_33", "QLabel", "page_8", "基量："},
    {"lineEdit_trade_baseCount", "QLineEdit", "page_8", ""},
    {"label_34", "QLabel", "page_8", "拆单策略："},
    {"comboBox_trade_split", "QComboBox", "page_8", nullptr},
    {"label_30", "QLabel", "page_8", "单笔上限："},
    {"lineEdit_trade_high", "QLineEdit", "page_8", ""},
    {"label_trade_low", "QLabel", "page_8", "单笔下限："},
    {"lineEdit_trade_low", "QLineEdit", "page_8", ""},
    {"label_trade_desc", "QLabel", "page_8", "递减数量："},
    {"lineEdit_trade_desc", "QLineEdit", "page_8", ""},
    {"page_9", "QWidget", "stackedWidget_trade", nullptr},
    {"label_29", "QLabel", "page_9", "科创板自动分仓"},
    {"line_14", "QFrame", "page_9", nullptr},
    {"checkBox_trade_kc_fc", "QCheckBox", "page_9", "启用科创板股票自动分仓"},
    {"label_36", "QLabel", "page_9", "基量："},
    {"lineEdit_trade_kc_baseCount", "QLineEdit", "page_9", ""},
    {"label_37", "QLabel", "page_9", "拆单策略："},
    {"comboBox_trade_kc_split", "QComboBox", "page_9", nullptr},
    {"label_39", "QLabel", "page_9", "单笔上限："},
    {"lineEdit_trade_kc_high", "QLineEdit", "page_9", ""},
    {"label_trade_kc_low", "QLabel", "page_9", "单笔下限："},
    {"lineEdit_trade_kc_low", "QLineEdit", "page_9", ""},
    {"label_trade_kc_desc", "QLabel", "page_9", "递减数量："},
    {"lineEdit_trade_kc_desc", "QLineEdit", "page_9", ""},
    {"label_38", "QLabel", "page_9", "科创板保护价"},
    {"line_15", "QFrame", "page_9", nullptr},
    {"label_40", "QLabel", "page_9", "科创板买入保护价默认值最新价上浮："},
    {"comboBox_trade_kc_buyRise", "QComboBox", "page_9", nullptr},
    {"label_26", "QLabel", "page_9", "%"},
    {"pushButton_kc_buyRise", "QPushButton", "page_9", "修改"},
    {"label_41", "QLabel", "page_9", "科创板卖出保护价默认值最新价上浮："},
    {"comboBox_trade_kc_sellRise", "QComboBox", "page_9", nullptr},
    {"label_27", "QLabel", "page_9", "%"},
    {"pushButton_kc_sellRise", "QPushButton", "page_9", "修改"},

    {"page_14", "QWidget", "stackedWidget", nullptr},
    {"widget_shortcut", "CNavWidget", "page_14", nullptr},
    {"stackedWidget_shortcut", "QStackedWidget", "page_14", nullptr},
    {"page_16", "QWidget", "stackedWidget_shortcut", nullptr},
    {"label_shortcut", "QLabel", "page_16", "普通交易快捷键"},
    {"line_28", "QFrame", "page_16", nullptr},
    {"tableWidget_shortcut", "QTableWidget", "page_16", nullptr},
    {"page_10", "QWidget", "stackedWidget_shortcut", nullptr},
    {"label_shortcut_2", "QLabel", "page_10", "信用交易快捷键"},
    {"line_29", "QFrame", "page_10", nullptr},
    {"tableWidget_credit", "QTableWidget", "page_10", nullptr},
    {"page_11", "QWidget", "stackedWidget_shortcut", nullptr},
    {"label_shortcut_3", "QLabel", "page_11", "交易全局快捷键"},
    {"line_30", "QFrame", "page_11", nullptr},
    {"tableWidget_whole", "QTableWidget", "page_11", nullptr},
};
// clang-format on

const QStringList headings{
    QStringLiteral("label"),
    QStringLiteral("label_4"),
    QStringLiteral("label_6"),
    QStringLiteral("label_8"),
    QStringLiteral("label_10"),
    QStringLiteral("label_13"),
    QStringLiteral("label_16"),
    QStringLiteral("label_19"),
    QStringLiteral("label_21"),
    QStringLiteral("label_23"),
    QStringLiteral("label_25"),
    QStringLiteral("label_28"),
    QStringLiteral("label_29"),
    QStringLiteral("label_38"),
    QStringLiteral("label_shortcut"),
    QStringLiteral("label_shortcut_2"),
    QStringLiteral("label_shortcut_3"),
};

QString latin(const char* name) { return QString::fromLatin1(name); }

int middle(const QRect& r) { return r.y() + r.height() / 2; }

} // namespace

class tst_FormCatalogue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void topLevel();
    void everyControl_data();
    void everyControl();
    void nothingElse();
    void everyTextIsTranslated();
    void headingsAndRules_data();
    void headingsAndRules();
    void fieldGeometry_data();
    void fieldGeometry();
    void checkBoxPlaces_data();
    void checkBoxPlaces();
    void labelsStandLevelWithTheirFields_data();
    void labelsStandLevelWithTheirFields();
    void fonts();
    void rulesAreSunkenHorizontals();
    void boxLayouts_data();
    void boxLayouts();
    void splittingGrids_data();
    void splittingGrids();
    void sizeLimits_data();
    void sizeLimits();
    void splittingPagesEndWithASpacer();
    void buttonRowStartsWithASpacer();
    void stackOrder_data();
    void stackOrder();
    void pagesAreMadeInTheirStacks();
    void membersAreTheToolkitsOwn();
    void startPages();
    void initialValues();
    void scaleRange_data();
    void scaleRange();
    void dialogKeepsItsSizeWhenShown();

private:
    BareForm m_form;

    QWidget* find(const QString& name) const;
    QWidget* find(const char* name) const;
};

QWidget* tst_FormCatalogue::find(const QString& name) const
{
    const auto found = m_form.widget.findChildren<QWidget*>(name);
    return found.size() == 1 ? found.first() : nullptr;
}

QWidget* tst_FormCatalogue::find(const char* name) const { return find(latin(name)); }

void tst_FormCatalogue::topLevel()
{
    QCOMPARE(m_form.widget.objectName(), QStringLiteral("CTradeConfigWidget"));
    QCOMPARE(m_form.widget.windowTitle(), QStringLiteral("CTradeConfigWidget"));
    QCOMPARE(m_form.widget.size(), QSize(659, 641));
    QCOMPARE(m_form.widget.font().family(), QStringLiteral("Arial"));
    QCOMPARE(m_form.widget.font().pointSize(), 11);
    QVERIFY(!m_form.widget.font().bold());
    const QLayout* const rows = m_form.widget.layout();
    const QWidget* const expected[]
        = {find("widget"), find("stackedWidget"), find("line_16"), find("widget_2")};
    QCOMPARE(rows->count(), 4);
    for (int row = 0; row < 4; ++row)
        QCOMPARE(static_cast<const QWidget*>(rows->itemAt(row)->widget()), expected[row]);
    QCOMPARE(find("widget")->minimumHeight(), 60);
    QCOMPARE(find("line_16")->maximumHeight(), 1);
}

void tst_FormCatalogue::everyControl_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(controls)); ++row)
        QTest::newRow(controls[row].name) << row;
}

void tst_FormCatalogue::everyControl()
{
    QFETCH(int, row);
    const Control& control = controls[row];
    const QWidget* const widget = find(control.name);
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), control.className);
    QCOMPARE(widget->parentWidget()->objectName(), latin(control.parent));
    const bool greyed = latin(control.name) == QLatin1String("label_35")
        || latin(control.name) == QLatin1String("label_42");
    QCOMPARE(widget->isEnabled(), !greyed);
    QVERIFY(widget->styleSheet().isEmpty());
    if (control.text)
        QCOMPARE(widget->property("text").toString(), QString::fromUtf8(control.text));
}

void tst_FormCatalogue::nothingElse()
{
    QSet<QString> known;
    for (const Control& control : controls)
        known << latin(control.name);
    QCOMPARE(known.size(), int(std::size(controls)));
    QStringList strangers;
    for (const QWidget* const widget : m_form.widget.findChildren<QWidget*>()) {
        // What lies inside a control is the toolkit's own.
        const QWidget* const parent = widget->parentWidget();
        if (parent->metaObject()->className() != QByteArray("QWidget")
            && parent->metaObject()->className() != QByteArray("QStackedWidget"))
            continue;
        if (parent != &m_form.widget && !known.contains(parent->objectName()))
            continue;
        if (!known.contains(widget->objectName()))
            strangers << widget->objectName();
    }
    QCOMPARE(strangers, QStringList());
}

void tst_FormCatalogue::everyTextIsTranslated()
{
    const MarkingTranslator translator;
    QVERIFY(translator.installed);
    const BareForm translated;

    QCOMPARE(translated.widget.windowTitle(), QStringLiteral("T:CTradeConfigWidget"));
    QCOMPARE(translated.ui.spinBox_scale->suffix(), QStringLiteral("T:%"));
    for (const Control& control : controls) {
        if (!control.text || !*control.text
            || latin(control.className) == QLatin1String("QSpinBox"))
            continue;
        const auto* const widget = translated.widget.findChild<QWidget*>(latin(control.name));
        QCOMPARE(widget->property("text").toString(),
                 QStringLiteral("T:") + QString::fromUtf8(control.text));
    }
}

void tst_FormCatalogue::headingsAndRules_data()
{
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("ruleX");
    QTest::addColumn<int>("ruleWidth");
    const auto row = [](const char* heading, int y, const char* rule, int x, int width) {
        QTest::newRow(heading) << latin(heading) << QRect(10, y, 91, 16) << latin(rule) << x
                               << width;
    };
    row("label", 20, "line_2", 110, 400);
    row("label_4", 130, "line_3", 110, 400);
    row("label_6", 210, "line_4", 110, 400);
    row("label_8", 290, "line_5", 110, 400);
    row("label_10", 20, "line_6", 120, 400);
    row("label_13", 20, "line_7", 120, 400);
    row("label_16", 20, "line_8", 110, 400);
    row("label_19", 210, "line_9", 110, 400);
    row("label_21", 290, "line_10", 110, 400);
    row("label_23", 370, "line_11", 110, 400);
    row("label_25", 20, "line_12", 90, 420);
    const QRect tableHeading(10, 9, 141, 31);
    QTest::newRow("label_shortcut")
        << latin("label_shortcut") << tableHeading << latin("line_28") << 130 << 380;
    QTest::newRow("label_shortcut_2")
        << latin("label_shortcut_2") << tableHeading << latin("line_29") << 130 << 380;
    QTest::newRow("label_shortcut_3")
        << latin("label_shortcut_3") << tableHeading << latin("line_30") << 130 << 380;
}

void tst_FormCatalogue::headingsAndRules()
{
    QFETCH(QString, heading);
    QFETCH(QRect, place);
    QFETCH(QString, rule);
    QFETCH(int, ruleX);
    QFETCH(int, ruleWidth);
    QCOMPARE(find(heading)->geometry(), place);
    const QRect line = find(rule)->geometry();
    QCOMPARE(line.x(), ruleX);
    QCOMPARE(line.width(), ruleWidth);
    QCOMPARE(line.height(), 1);
    QVERIFY2(qAbs(middle(line) - middle(place)) <= 1, qPrintable(QString::number(line.y())));
    QCOMPARE(find(rule)->parentWidget(), find(heading)->parentWidget());
}

void tst_FormCatalogue::fieldGeometry_data()
{
    QTest::addColumn<QRect>("expected");
    const auto row = [](const char* field, int x, int y, int width, int height) {
        QTest::newRow(field) << QRect(x, y, width, height);
    };
    row("comboBox_system_buy_type", 280, 50, 101, 22);
    row("comboBox_system_sell_type", 280, 90, 101, 22);
    row("comboBox_system_defaultView", 280, 170, 101, 22);
    row("lineEdit_system_lockTime", 280, 250, 101, 20);
    row("comboBox_system_buyType", 280, 330, 101, 22);
    row("comboBox_system_sellType", 280, 380, 101, 22);
    row("label_35", 390, 50, 131, 21);
    row("label_42", 390, 90, 131, 21);
    row("comboBox_system_hqLink", 300, 60, 101, 22);
    row("comboBox_system_hqLink2", 300, 110, 101, 22);
    row("comboBox_system_language", 300, 70, 101, 22);
    row("spinBox_scale", 300, 120, 101, 22);
    row("comboBox_system_fontSize", 300, 170, 101, 22);
    row("comboBox_trade_buyPrice", 280, 50, 101, 22);
    row("comboBox_trade_buyCount", 280, 90, 101, 22);
    row("comboBox_trade_sellPrice", 280, 130, 101, 22);
    row("comboBox_trade_sellCount", 280, 170, 101, 22);
    row("comboBox_trade_wt", 280, 250, 171, 22);
    row("comboBox_trade_lineEdit", 280, 410, 171, 22);
}

void tst_FormCatalogue::fieldGeometry()
{
    QFETCH(QRect, expected);
    QCOMPARE(find(QTest::currentDataTag())->geometry(), expected);
}

void tst_FormCatalogue::checkBoxPlaces_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("checkBox_trade_pk") << QPoint(50, 330);
    QTest::newRow("checkBox_trade_cancle") << QPoint(60, 60);
    QTest::newRow("checkBox_trade_wt") << QPoint(60, 100);
    QTest::newRow("checkBox_trade_wtDlg") << QPoint(60, 140);
}

void tst_FormCatalogue::checkBoxPlaces()
{
    QFETCH(QPoint, place);
    QCOMPARE(find(QTest::currentDataTag())->pos(), place);
}

void tst_FormCatalogue::labelsStandLevelWithTheirFields_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("fieldY");
    const auto row = [](const char* label, const char* field, int y) {
        QTest::newRow(label) << latin(field) << y;
    };
    row("label_2", "comboBox_system_buy_type", 50);
    row("label_3", "comboBox_system_sell_type", 90);
    row("label_5", "comboBox_system_defaultView", 170);
    row("label_7", "lineEdit_system_lockTime", 250);
    row("label_9", "comboBox_system_buyType", 330);
    row("label_22", "comboBox_system_sellType", 380);
    row("label_12", "comboBox_system_hqLink", 60);
    row("label_11", "comboBox_system_hqLink2", 110);
    row("label_15", "comboBox_system_language", 70);
    row("label_scale", "spinBox_scale", 120);
    row("label_14", "comboBox_system_fontSize", 170);
    row("label_17", "comboBox_trade_buyPrice", 50);
    row("label_18", "comboBox_trade_buyCount", 90);
    row("label_31", "comboBox_trade_sellPrice", 130);
    row("label_32", "comboBox_trade_sellCount", 170);
    row("label_20", "comboBox_trade_wt", 250);
    row("label_24", "comboBox_trade_lineEdit", 410);
}

void tst_FormCatalogue::labelsStandLevelWithTheirFields()
{
    QFETCH(QString, field);
    QFETCH(int, fieldY);
    const QRect label = find(QTest::currentDataTag())->geometry();
    const QRect input = find(field)->geometry();
    QCOMPARE(label.x(), 50);
    QCOMPARE(label.height(), 16);
    QCOMPARE(input.y(), fieldY);
    QCOMPARE(middle(label), middle(input));
    QVERIFY(label.right() < input.left());
    QCOMPARE(find(QTest::currentDataTag())->parentWidget(), find(field)->parentWidget());
}

void tst_FormCatalogue::fonts()
{
    for (const Control& control : controls) {
        const QFont font = find(control.name)->font();
        QCOMPARE(font.family(), QStringLiteral("Arial"));
        QCOMPARE(font.pointSize(), 11);
        const bool heading = headings.contains(latin(control.name));
        QVERIFY2(font.bold() == heading, control.name);
        QCOMPARE(font.weight(), heading ? 75 : 50);
    }
    for (const char* const table :
         {"tableWidget_shortcut", "tableWidget_credit", "tableWidget_whole"})
        QVERIFY(find(table)->testAttribute(Qt::WA_SetFont));
}

void tst_FormCatalogue::rulesAreSunkenHorizontals()
{
    int rules = 0;
    for (const Control& control : controls) {
        if (!latin(control.name).startsWith(QLatin1String("line_")))
            continue;
        const auto* const frame = qobject_cast<QFrame*>(find(control.name));
        QVERIFY(frame);
        QCOMPARE(frame->frameShape(), QFrame::HLine);
        QCOMPARE(frame->frameShadow(), QFrame::Sunken);
        ++rules;
    }
    QCOMPARE(rules, 18);
}

void tst_FormCatalogue::boxLayouts_data()
{
    QTest::addColumn<int>("spacing"); // -1: not fixed
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("verticalLayout") << 0 << QMargins(1, 1, 1, 1);
    QTest::newRow("horizontalLayout") << -1 << QMargins(0, 0, 0, 0);
    QTest::newRow("horizontalLayout_2") << 6 << QMargins(9, 9, 9, 9);
    QTest::newRow("horizontalLayout_3") << 2 << QMargins(0, 0, 0, 0);
    QTest::newRow("horizontalLayout_4") << 2 << QMargins(0, 0, 0, 0);
    QTest::newRow("horizontalLayout_5") << 2 << QMargins(0, 0, 0, 0);
}

void tst_FormCatalogue::boxLayouts()
{
    QFETCH(int, spacing);
    QFETCH(QMargins, margins);
    const auto* const layout = m_form.widget.findChild<QBoxLayout*>(latin(QTest::currentDataTag()));
    QVERIFY(layout);
    if (spacing >= 0)
        QCOMPARE(layout->spacing(), spacing);
    QCOMPARE(layout->contentsMargins(), margins);
}

void tst_FormCatalogue::splittingGrids_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("gridLayout") << QStringList{latin("checkBox_trade_fc"),
                                               latin("label_33 lineEdit_trade_baseCount"),
                                               latin("label_34 comboBox_trade_split"),
                                               latin("label_30 lineEdit_trade_high"),
                                               latin("label_trade_low lineEdit_trade_low"),
                                               latin("label_trade_desc lineEdit_trade_desc")};
    QTest::newRow("gridLayout_2") << QStringList{
        latin("checkBox_trade_kc_fc"),
        latin("label_36 lineEdit_trade_kc_baseCount"),
        latin("label_37 comboBox_trade_kc_split"),
        latin("label_39 lineEdit_trade_kc_high"),
        latin("label_trade_kc_low lineEdit_trade_kc_low"),
        latin("label_trade_kc_desc lineEdit_trade_kc_desc")};
    QTest::newRow("gridLayout_3") << QStringList{
        latin("label_40 comboBox_trade_kc_buyRise label_26 pushButton_kc_buyRise"),
        latin("label_41 comboBox_trade_kc_sellRise label_27 pushButton_kc_sellRise")};
}

void tst_FormCatalogue::splittingGrids()
{
    QFETCH(QStringList, rows);
    const auto* const grid = m_form.widget.findChild<QGridLayout*>(latin(QTest::currentDataTag()));
    QVERIFY(grid);
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 6);
    QCOMPARE(grid->rowCount(), rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        QStringList names;
        const QWidget* previous = nullptr;
        for (int column = 0; column < grid->columnCount(); ++column) {
            QLayoutItem* const item = grid->itemAtPosition(row, column);
            if (!item || !item->widget() || item->widget() == previous)
                continue;
            previous = item->widget();
            names << previous->objectName();
        }
        QCOMPARE(names.join(QLatin1Char(' ')), rows.at(row));
    }
}

void tst_FormCatalogue::sizeLimits_data()
{
    constexpr int free = 16777215;
    QTest::addColumn<QSize>("smallest");
    QTest::addColumn<QSize>("largest");
    const auto row = [](const char* name, QSize smallest, QSize largest) {
        QTest::newRow(name) << smallest << largest;
    };
    for (const char* const name :
         {"lineEdit_trade_baseCount", "comboBox_trade_split", "lineEdit_trade_high",
          "lineEdit_trade_low", "lineEdit_trade_desc", "lineEdit_trade_kc_baseCount",
          "comboBox_trade_kc_split", "lineEdit_trade_kc_high", "lineEdit_trade_kc_low",
          "lineEdit_trade_kc_desc"})
        row(name, {0, 23}, {100, free});
    row("checkBox_trade_fc", {0, 23}, {free, free});
    row("checkBox_trade_kc_fc", {0, 23}, {free, free});
    row("comboBox_trade_kc_buyRise", {100, 23}, {free, free});
    row("comboBox_trade_kc_sellRise", {100, 23}, {free, free});
    row("pushButton_kc_buyRise", {60, 0}, {free, free});
    row("pushButton_kc_sellRise", {60, 0}, {free, free});
    row("label_28", {0, 0}, {100, free});
    row("label_29", {0, 0}, {120, free});
    row("label_38", {0, 0}, {120, free});
    row("pushButton_cancle", {75, 25}, {free, free});
    row("pushButton_confirm", {75, 25}, {free, free});
    row("widget_system", {120, 0}, {free, free});
    row("widget_trade", {120, 0}, {free, free});
    row("widget_shortcut", {120, 0}, {free, free});
    row("widget", {0, 60}, {free, free});
    for (const char* const name : {"line_13", "line_14", "line_15", "line_16"})
        row(name, {0, 0}, {free, 1});
}

void tst_FormCatalogue::sizeLimits()
{
    QFETCH(QSize, smallest);
    QFETCH(QSize, largest);
    QCOMPARE(find(QTest::currentDataTag())->minimumSize(), smallest);
    QCOMPARE(find(QTest::currentDataTag())->maximumSize(), largest);
}

void tst_FormCatalogue::splittingPagesEndWithASpacer()
{
    struct Page {
        const char* name;
        int rows;
        QList<int> headingRows;
    };
    const Page pages[] = {{"page_8", 3, {0}}, {"page_9", 5, {0, 2}}};
    for (const Page& page : pages) {
        QLayout* const layout = find(page.name)->layout();
        QVERIFY(layout);
        QCOMPARE(layout->count(), page.rows);
        for (const int row : page.headingRows) {
            const QLayout* const heading = layout->itemAt(row)->layout();
            QVERIFY(heading);
            QCOMPARE(heading->contentsMargins().bottom(), 10);
            QCOMPARE(heading->count(), 2);
        }
        const QSpacerItem* const spacer = layout->itemAt(page.rows - 1)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }
}

void tst_FormCatalogue::buttonRowStartsWithASpacer()
{
    QLayout* const row = find("widget_2")->layout();
    QCOMPARE(row->count(), 3);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(0)->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(row->itemAt(1)->widget(), find("pushButton_cancle"));
    QCOMPARE(row->itemAt(2)->widget(), find("pushButton_confirm"));
    for (const char* const group : {"page", "page_2", "page_14"}) {
        QLayout* const halves = find(group)->layout();
        QCOMPARE(halves->count(), 2);
        QCOMPARE(halves->itemAt(0)->widget()->metaObject()->className(), "CNavWidget");
        QVERIFY(qobject_cast<QStackedWidget*>(halves->itemAt(1)->widget()));
    }
}

void tst_FormCatalogue::stackOrder_data()
{
    QTest::addColumn<QString>("pages");
    QTest::newRow("stackedWidget") << latin("page page_2 page_14");
    QTest::newRow("stackedWidget_system") << latin("page_3 page_4 page_5");
    QTest::newRow("stackedWidget_trade") << latin("page_6 page_7 page_8 page_9");
    QTest::newRow("stackedWidget_shortcut") << latin("page_16 page_10 page_11");
}

void tst_FormCatalogue::stackOrder()
{
    QFETCH(QString, pages);
    const auto* const stack = qobject_cast<QStackedWidget*>(find(QTest::currentDataTag()));
    QStringList names;
    for (int index = 0; index < stack->count(); ++index)
        names << stack->widget(index)->objectName();
    QCOMPARE(names.join(QLatin1Char(' ')), pages);
}

// Moved there later, every child would be told of the font again.
void tst_FormCatalogue::pagesAreMadeInTheirStacks()
{
    class Birthplaces : public QObject {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::ParentChange
                && watched->objectName().startsWith(QLatin1String("page")))
                moved << watched->objectName();
            return false;
        }
        QStringList moved;
    };
    Birthplaces birthplaces;
    qApp->installEventFilter(&birthplaces);
    const BareForm made;
    qApp->removeEventFilter(&birthplaces);
    QCOMPARE(birthplaces.moved, QStringList());
    int pages = 0;
    for (const QStackedWidget* const stack : made.widget.findChildren<QStackedWidget*>()) {
        for (int index = 0; index < stack->count(); ++index, ++pages)
            QCOMPARE(stack->widget(index)->parentWidget(), stack);
    }
    QCOMPARE(pages, 13);
}

void tst_FormCatalogue::membersAreTheToolkitsOwn()
{
    QCOMPARE((m_form.ui.*topStack)->objectName(), QStringLiteral("stackedWidget"));
    QCOMPARE((m_form.ui.*rowLabel)->objectName(), QStringLiteral("label_14"));
    QStringList names;
    for (QLabel* const label : {m_form.ui.label_2, m_form.ui.label_35})
        names << label->objectName();
    QCOMPARE(names, QStringList({QStringLiteral("label_2"), QStringLiteral("label_35")}));
}

void tst_FormCatalogue::startPages()
{
    QCOMPARE(m_form.ui.stackedWidget->currentIndex(), 0);
    QCOMPARE(m_form.ui.stackedWidget_system->currentIndex(), 2);
    QCOMPARE(m_form.ui.stackedWidget_trade->currentIndex(), 0);
    QCOMPARE(m_form.ui.stackedWidget_shortcut->currentIndex(), 2);
}

void tst_FormCatalogue::initialValues()
{
    const auto combos = m_form.widget.findChildren<QComboBox*>();
    QCOMPARE(combos.size(), 19);
    for (const QComboBox* const combo : combos) {
        QCOMPARE(combo->count(), 0);
        QVERIFY(!combo->isEditable());
    }
    const auto boxes = m_form.widget.findChildren<QCheckBox*>();
    QCOMPARE(boxes.size(), 6);
    for (const QCheckBox* const box : boxes) {
        QVERIFY(!box->isChecked());
        QVERIFY(!box->isTristate());
    }
    for (const QTableWidget* const table : m_form.widget.findChildren<QTableWidget*>()) {
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->columnCount(), 0);
    }
}

void tst_FormCatalogue::scaleRange_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");
    QTest::newRow("zero") << 0 << 100;
    QTest::newRow("negative") << -5 << 100;
    QTest::newRow("just below") << 99 << 100;
    QTest::newRow("bottom") << 100 << 100;
    QTest::newRow("between steps") << 103 << 103;
    QTest::newRow("top") << 300 << 300;
    QTest::newRow("just above") << 301 << 300;
    QTest::newRow("largest") << 2147483647 << 300;
}

void tst_FormCatalogue::scaleRange()
{
    QFETCH(int, value);
    QFETCH(int, shown);
    BareForm fresh;
    QSpinBox& box = *fresh.ui.spinBox_scale;
    QCOMPARE(box.minimum(), 100);
    QCOMPARE(box.maximum(), 300);
    QCOMPARE(box.singleStep(), 5);
    QCOMPARE(box.suffix(), QStringLiteral("%"));
    box.setValue(value);
    QCOMPARE(box.value(), shown);
    QCOMPARE(box.text(), QString::number(shown) + QLatin1Char('%'));
}

void tst_FormCatalogue::dialogKeepsItsSizeWhenShown()
{
    BareForm fresh;
    fresh.widget.show();
    QCOMPARE(fresh.widget.size(), QSize(659, 641));
    QCOMPARE(fresh.ui.widget->geometry(), QRect(1, 1, 657, 60));
    QCOMPARE(fresh.ui.widget_system->width(), 120);
    QCOMPARE(fresh.ui.stackedWidget_system->x(), 122);
    // The rightmost fixed geometry on the pages must still be seen.
    QVERIFY(fresh.ui.stackedWidget_system->width() >= 521);
    QVERIFY(fresh.ui.stackedWidget_system->height() >= 432);
}

TRADECONFIG_TEST_MAIN(tst_FormCatalogue)
#include "tst_FormCatalogue.moc"
