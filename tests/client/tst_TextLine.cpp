#include "appearance/SkinStyle.h"
#include "libskin/SkinLibrary.h"
#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "support/TextInk.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <QPainter>
#include <QTranslator>

#include <cmath>
#include <memory>

using CorvelSkin::SkinLibrary;

namespace {

constexpr int percents[] = {100, 125, 150, 175, 200, 300};

// Ideographs of both writings, letters with and without feet, digits.
constexpr const char* samples[] = {"默认", "預設", "ghXy", "100"};

void setText(QWidget& widget, const QString& text)
{
    if (auto* const combo = qobject_cast<QComboBox*>(&widget)) {
        combo->setItemText(combo->currentIndex(), text);
        return;
    }
    widget.setProperty("text", text);
    if (auto* const edit = qobject_cast<QLineEdit*>(&widget))
        edit->deselect();
}

/// Where @p widget shows its text, without what else is there.
QRect textArea(const QWidget& widget)
{
    if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        combo->initStyleOption(&option);
        return combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .adjusted(1, 1, -1, -1);
    }
    const auto* const edit = qobject_cast<const QLineEdit*>(&widget);
    const bool framed = qobject_cast<const QPushButton*>(&widget) || (edit && edit->hasFrame());
    return framed ? widget.rect().adjusted(2, 2, -2, -2) : widget.rect();
}

} // namespace

class tst_TextLine : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void labelAndFieldAreOneLine_data();
    void labelAndFieldAreOneLine();
    void cellsOfARowAreOneLine();
    void nothingIsCut_data();
    void nothingIsCut();
    void labelsStayAsTheFormHasThem();
    void severalLinesStayTheToolkits();

private:
    void openDialog();
    void showPageOf(QWidget* widget);

    std::unique_ptr<FakeTrade> m_trade;
    std::unique_ptr<CTradeConfigWidget> m_dialog;
};

void tst_TextLine::initTestCase()
{
    QApplication::setStyle(new SkinStyle);
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    QApplication::setPalette(SkinLibrary::instance()->palette());
}

void tst_TextLine::init() { openDialog(); }

void tst_TextLine::openDialog()
{
    m_trade = std::make_unique<FakeTrade>();
    m_dialog = std::make_unique<CTradeConfigWidget>(m_trade.get());
    m_dialog->ui.checkBox_trade_fc->setChecked(true);
    m_dialog->setFocusPolicy(Qt::StrongFocus);
    m_dialog->show();
    m_dialog->setFocus();
}

void tst_TextLine::showPageOf(QWidget* widget)
{
    for (QWidget* page = widget; page != m_dialog.get(); page = page->parentWidget()) {
        if (auto* const stack = qobject_cast<QStackedWidget*>(page->parentWidget()))
            stack->setCurrentWidget(page);
    }
    QCoreApplication::processEvents();
}

void tst_TextLine::labelAndFieldAreOneLine_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("field");
    const auto row = [](const char* label, const char* field) {
        QTest::newRow(field) << QString::fromLatin1(label) << QString::fromLatin1(field);
    };
    row("label_2", "comboBox_system_buy_type");
    row("label_7", "lineEdit_system_lockTime");
    row("label_12", "comboBox_system_hqLink");
    row("label_scale", "qt_spinbox_lineedit");
    row("label_20", "comboBox_trade_wt");
    row("label_33", "lineEdit_trade_baseCount");
    row("label_34", "comboBox_trade_split");
    row("label_40", "comboBox_trade_kc_buyRise");
    row("label_40", "pushButton_kc_buyRise");
}

void tst_TextLine::labelAndFieldAreOneLine()
{
    QFETCH(const QString, label);
    QFETCH(const QString, field);
    auto* const first = m_dialog->findChild<QWidget*>(label);
    auto* const second = m_dialog->findChild<QWidget*>(field);
    showPageOf(second);
    for (const char* const sample : samples) {
        setText(*first, QString::fromUtf8(sample));
        setText(*second, QString::fromUtf8(sample));
        QCoreApplication::processEvents();
        for (const int percent : percents) {
            const QImage image = renderedAt(*m_dialog, percent / 100.0);
            const auto ink = [&](QWidget* widget) {
                const QPoint corner = widget->mapTo(m_dialog.get(), QPoint());
                return textInk(image, textArea(*widget).translated(corner));
            };
            const TextInk one = ink(first);
            const TextInk other = ink(second);
            const QString where = QStringLiteral("%1 at %2 %: %3 to %4, %5 to %6; %7, %8")
                                      .arg(QString::fromUtf8(sample))
                                      .arg(percent)
                                      .arg(one.box.top())
                                      .arg(one.box.bottom())
                                      .arg(other.box.top())
                                      .arg(other.box.bottom())
                                      .arg(one.sum)
                                      .arg(other.sum);
            QVERIFY2(std::abs(one.box.top() - other.box.top()) <= 1, qPrintable(where));
            QVERIFY2(std::abs(one.box.bottom() - other.box.bottom()) <= 1, qPrintable(where));
            // The grounds differ by four levels in a hundred; a line of pixels that is cut is more.
            QVERIFY2(double(other.sum) >= 0.985 * double(one.sum), qPrintable(where));
        }
    }
}

void tst_TextLine::cellsOfARowAreOneLine()
{
    QTableWidget* const table = m_dialog->ui.tableWidget_shortcut;
    showPageOf(table);
    constexpr int row = 3;
    QWidget* const editor = table->cellWidget(row, 1);
    const QTableWidgetItem* const name = table->item(row, 0);
    const QTableWidgetItem* const status = table->item(row, 2);
    for (const char* const sample : samples) {
        for (const int column : {0, 2})
            table->item(row, column)->setText(QString::fromUtf8(sample));
        setText(*editor, QString::fromUtf8(sample));
        QCoreApplication::processEvents();
        const QPoint corner = table->viewport()->mapTo(m_dialog.get(), QPoint());
        for (const int percent : percents) {
            const QImage image = renderedAt(*m_dialog, percent / 100.0);
            const auto box = [&](const QRect& cell) {
                return textInk(image, cell.translated(corner).adjusted(0, 2, -2, -2)).box;
            };
            const QRect key = box(editor->geometry());
            for (const QRect& other :
                 {box(table->visualItemRect(name)), box(table->visualItemRect(status))}) {
                const QString where = QStringLiteral("%1 at %2 %: %3 to %4, %5 to %6")
                                          .arg(QString::fromUtf8(sample))
                                          .arg(percent)
                                          .arg(other.top())
                                          .arg(other.bottom())
                                          .arg(key.top())
                                          .arg(key.bottom());
                QVERIFY2(std::abs(other.top() - key.top()) <= 1, qPrintable(where));
                QVERIFY2(std::abs(other.bottom() - key.bottom()) <= 1, qPrintable(where));
            }
        }
    }
}

void tst_TextLine::nothingIsCut_data()
{
    QTest::addColumn<QString>("language");
    for (const char* const language : {"zh_CN", "zh_TW", "en_US"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void tst_TextLine::nothingIsCut()
{
    QFETCH(const QString, language);
    QTranslator translator;
    if (language != QLatin1String("zh_CN")) {
        QVERIFY(translator.load(QStringLiteral("tradeConfig_") + language,
                                QStringLiteral(":/translations")));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    openDialog();
    int count = 0;
    for (auto* const widget : m_dialog->findChildren<QWidget*>()) {
        const bool holdsText = qobject_cast<QLabel*>(widget) || qobject_cast<QCheckBox*>(widget);
        if (!holdsText || widget->property("text").toString().isEmpty())
            continue;
        showPageOf(widget);
        // Rows of a layout are as high as their texts need, and nearer to each other.
        if (!widget->isVisible() || widget->parentWidget()->layout())
            continue;
        for (const int percent : percents) {
            const double cut = cutInk(*widget, percent / 100.0);
            // The softened edge of a stroke may stick out; a line of pixels would be two percent.
            QVERIFY2(cut <= 0.01,
                     qPrintable(QStringLiteral("%1 at %2 %: %3")
                                    .arg(widget->objectName())
                                    .arg(percent)
                                    .arg(cut)));
        }
        ++count;
    }
    QVERIFY2(count >= 25, qPrintable(QString::number(count)));
}

void tst_TextLine::labelsStayAsTheFormHasThem()
{
    for (const QLabel* const label : {m_dialog->ui.label, m_dialog->ui.label_2}) {
        QCOMPARE(label->contentsMargins(), QMargins());
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignLeading | Qt::AlignVCenter));
    }
}

void tst_TextLine::severalLinesStayTheToolkits()
{
    const QRect area(5, 5, 90, 90);
    const auto drawn = [&area](const QStyle& style, const QString& text, int flags) {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        style.drawItemText(&painter, area, flags, QApplication::palette(), true, text,
                           QPalette::WindowText);
        return image;
    };
    const SkinStyle own;
    const QProxyStyle toolkit(QStringLiteral("Fusion"));
    const QString lines = QStringLiteral("默认\ngXy");
    const QString wrapped = QStringLiteral("默认 默认 默认 默认 默认");
    for (const int flags : {int(Qt::AlignCenter), int(Qt::AlignLeft | Qt::AlignTop)})
        QCOMPARE(drawn(own, lines, flags), drawn(toolkit, lines, flags));
    QCOMPARE(drawn(own, wrapped, Qt::AlignCenter | Qt::TextWordWrap),
             drawn(toolkit, wrapped, Qt::AlignCenter | Qt::TextWordWrap));
    QVERIFY(drawn(own, wrapped, Qt::AlignCenter) != drawn(toolkit, wrapped, Qt::AlignCenter));
}

TRADECONFIG_TEST_MAIN(tst_TextLine)
#include "tst_TextLine.moc"
