#include "support/MessageCapture.h"
#include "support/ModalAnswer.h"
#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/ImageButton.h"
#include "tradeConfig/MessageBox.h"

#include <QAbstractEventDispatcher>
#include <QLabel>
#include <QPixmap>
#include <QRandomGenerator>
#include <QStyle>
#include <QTimerEvent>
#include <QTranslator>

class tst_MessageBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formAndWindow();
    void captionBar();
    void iconByKind_data();
    void iconByKind();
    void sizeAtConstruction_data();
    void sizeAtConstruction();
    void sizesWithAndWithoutIcon();
    void eventsBeforeShowingKeepTheSize();
    void everyButton_data();
    void everyButton();
    void buttonsHaveAFixedOrder_data();
    void buttonsHaveAFixedOrder();
    void theLastDefaultWins_data();
    void theLastDefaultWins();
    void seventhButton();
    void buttonTextsAreTranslated();
    void resultIsThePressedButton_data();
    void resultIsThePressedButton();
    void staticFunctions_data();
    void staticFunctions();
    void titleOfTheStaticFunctions();
    void closingByOtherWays_data();
    void closingByOtherWays();
    void returnPressesTheDefault_data();
    void returnPressesTheDefault();
    void heldKeyAnswersNothing_data();
    void heldKeyAnswersNothing();
    void tabWalksTheButtons();
    void countdownByTicks_data();
    void countdownByTicks();
    void noCountdown_data();
    void noCountdown();
    void countdownTakesTheFirstButton();
    void countdownEndsExec();
    void timerRunsEverySecond();
    void painting();
    void textIsShownAsItIs();
    void longWordIsBroken();
    void nothingIsCut_data();
    void nothingIsCut();
    void nothingIsCutInAnyText();
    void nothingIsCutInAnySize_data();
    void nothingIsCutInAnySize();
    void iconStandsAtTheFirstLine();
    void buttonsKeepInsideTheBox();
};

namespace {

struct Box : CMessageBox {
    explicit Box(QMessageBox::StandardButtons buttons, int seconds = -1,
                 QMessageBox::Icon iconKind = QMessageBox::NoIcon,
                 const QString& text = QStringLiteral("保存成功"))
        : CMessageBox(nullptr, iconKind, text, QStringLiteral("提示"), buttons, seconds)
    {
    }
};

QStringList shownTexts(const CMessageBox& box)
{
    QStringList result;
    for (const QPushButton* button : box.btns) {
        if (!button->isHidden())
            result << button->text();
    }
    return result;
}

QStringList defaultTexts(const CMessageBox& box)
{
    QStringList result;
    for (const QPushButton* button : box.btns) {
        if (button->isDefault())
            result << button->text();
    }
    return result;
}

void tick(CMessageBox& box)
{
    QTimerEvent event(1);
    QCoreApplication::sendEvent(&box, &event);
}

class Texts : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

struct StandardButtonRow {
    QMessageBox::StandardButton button;
    int value;
    const char* text;
    bool isDefault;
};

const StandardButtonRow standardButtons[] = {
    {QMessageBox::Ok, 0x400, "确定", true},
    {QMessageBox::Save, 0x800, "保存", true},
    {QMessageBox::SaveAll, 0x1000, "全部保存", false},
    {QMessageBox::Open, 0x2000, "打开", true},
    {QMessageBox::Yes, 0x4000, "是", true},
    {QMessageBox::YesToAll, 0x8000, "全是", false},
    {QMessageBox::No, 0x10000, "否", false},
    {QMessageBox::NoToAll, 0x20000, "全否", false},
    {QMessageBox::Abort, 0x40000, "终止", false},
    {QMessageBox::Retry, 0x80000, "重试", false},
    {QMessageBox::Ignore, 0x100000, "忽略", false},
    {QMessageBox::Close, 0x200000, "关闭", false},
    {QMessageBox::Cancel, 0x400000, "取消", false},
    {QMessageBox::Discard, 0x800000, "放弃", false},
    {QMessageBox::Help, 0x1000000, "帮助", false},
    {QMessageBox::Apply, 0x2000000, "应用", false},
    {QMessageBox::Reset, 0x4000000, "重置", false},
    {QMessageBox::RestoreDefaults, 0x8000000, "还原默认值", false},
};

QString repeated(const QString& part, int count) { return part.repeated(count); }

QString lines(int count)
{
    QStringList result;
    for (int line = 1; line <= count; ++line)
        result << QStringLiteral("第%1行：委托数量必须是一百的整数倍").arg(line);
    return result.join(QLatin1Char('\n'));
}

// What a label of the same font needs for the text, wrapped as usual.
QSize hintOf(const QString& text)
{
    QLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setText(text);
    return label.sizeHint();
}

} // namespace

void tst_MessageBox::init() { RecordingSkin::reset(); }

void tst_MessageBox::formAndWindow()
{
    QWidget parent;
    const CMessageBox box(&parent, QMessageBox::Question, QStringLiteral("重启吗？"),
                          QStringLiteral("提示"), QMessageBox::Yes | QMessageBox::No, -1);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(box.windowFlags().testFlag(Qt::Dialog));
    QCOMPARE(box.windowModality(), Qt::WindowModal);
    QVERIFY(box.isModal());
    QVERIFY(box.autoFillBackground());
    QCOMPARE(box.windowTitle(), QStringLiteral("提示"));
    QCOMPARE(box.countdown, -1);

    QCOMPARE(box.objectName(), QStringLiteral("CMessageBox"));
    QCOMPARE(box.layout(), box.verticalLayout);
    QVERIFY(qobject_cast<QVBoxLayout*>(box.verticalLayout));
    QCOMPARE(box.verticalLayout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(box.verticalLayout->count(), 3);
    QCOMPARE(box.verticalLayout->itemAt(0)->widget(), box.caption);
    QCOMPARE(box.verticalLayout->itemAt(1)->layout(), box.layout1);
    QCOMPARE(box.verticalLayout->itemAt(2)->layout(), box.layout2);
    QVERIFY(qobject_cast<QHBoxLayout*>(box.layout1));
    QCOMPARE(box.layout1->objectName(), QStringLiteral("layout1"));
    QCOMPARE(box.layout1->count(), 2);
    QCOMPARE(box.layout1->itemAt(0)->widget(), box.icon);
    QCOMPARE(box.layout1->itemAt(1)->widget(), box.msg);
    QVERIFY(qobject_cast<QHBoxLayout*>(box.layout2));
    QCOMPARE(box.layout2->objectName(), QStringLiteral("layout2"));
    QCOMPARE(box.layout2->count(), 6);
    QCOMPARE(box.icon->objectName(), QStringLiteral("icon"));
    QCOMPARE(box.findChild<QLabel*>(QStringLiteral("msg")), box.msg);
    QCOMPARE(box.msg->text(), QStringLiteral("重启吗？"));
    QVERIFY(box.msg->wordWrap());
    for (int index = 0; index < 6; ++index) {
        QCOMPARE(box.layout2->itemAt(index)->widget(), box.btns[index]);
        QCOMPARE(box.btns[index]->objectName(), QStringLiteral("btn%1").arg(index + 1));
    }
    QCOMPARE(box.btns[0], box.btn1);
    QCOMPARE(box.btns[5], box.btn6);
    QCOMPARE(box.metaObject()->className(), "CMessageBox");
}

void tst_MessageBox::captionBar()
{
    const Box box(QMessageBox::Ok);
    QCOMPARE(box.caption->minimumHeight(), 30);
    QCOMPARE(box.caption->maximumHeight(), 30);
    QVERIFY(box.caption->frameEnabled);
    QVERIFY(box.caption->isDialog);
    QVERIFY(box.caption->titleLabel);
    QCOMPARE(box.caption->titleLabel->text(), QStringLiteral("提示"));
    QVERIFY(box.caption->closeButton);
    QVERIFY(!box.caption->minimizeButton);
    QVERIFY(!box.caption->maximizeButton);
}

void tst_MessageBox::iconByKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("pixmap");
    QTest::newRow("information") << int(QMessageBox::Information)
                                 << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("warning") << int(QMessageBox::Warning) << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("critical") << int(QMessageBox::Critical) << int(QStyle::SP_MessageBoxCritical);
    QTest::newRow("question") << int(QMessageBox::Question) << int(QStyle::SP_MessageBoxQuestion);
    QTest::newRow("none") << int(QMessageBox::NoIcon) << -1;
    QTest::newRow("unknown") << 77 << -1;
}

void tst_MessageBox::iconByKind()
{
    QFETCH(int, kind);
    QFETCH(int, pixmap);
    const Box box(QMessageBox::Ok, -1, QMessageBox::Icon(kind));
    QCOMPARE(box.icon->isHidden(), pixmap < 0);
    const QPixmap shown = box.icon->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.isNull(), pixmap < 0);
    if (pixmap >= 0) {
        const QPixmap expected
            = QApplication::style()->standardPixmap(QStyle::StandardPixmap(pixmap));
        QVERIFY(!expected.isNull());
        QCOMPARE(shown.toImage(), expected.toImage());
    }
}

void tst_MessageBox::sizeAtConstruction_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("保存成功");
    QTest::newRow("restart") << QStringLiteral("部分修改需要重启后生效，确定现在重启吗？");
    QTest::newRow("two lines") << lines(2);
    QTest::newRow("twenty lines") << lines(20);
    QTest::newRow("long") << repeated(QStringLiteral("数量不能大于上限，"), 40);
    QTest::newRow("English") << repeated(QStringLiteral("Some changes need a restart. "), 10);
}

void tst_MessageBox::sizeAtConstruction()
{
    QFETCH(QString, text);
    const QSize hint = hintOf(text);
    struct Row {
        QMessageBox::Icon iconKind;
        QMessageBox::StandardButtons buttons;
        QSize room;
    };
    const Row rows[] = {
        {QMessageBox::NoIcon, QMessageBox::NoButton, {160, 80}},
        {QMessageBox::NoIcon, QMessageBox::Ok, {160, 105}},
        {QMessageBox::Warning, QMessageBox::NoButton, {200, 100}},
        {QMessageBox::Warning, QMessageBox::Ok, {200, 125}},
        {QMessageBox::Warning, QMessageBox::StandardButtons(0x7000 | 0x70000), {200, 125}},
    };
    for (const Row& row : rows) {
        const Box box(row.buttons, -1, row.iconKind, text);
        QCOMPARE(box.msg->sizeHint(), hint);
        QCOMPARE(box.msg->size(), hint);
        QCOMPARE(box.size(), hint + row.room);
    }
}

void tst_MessageBox::sizesWithAndWithoutIcon()
{
    const QString text = QStringLiteral("存在不合理的修改参数");
    for (const QMessageBox::StandardButtons buttons :
         {QMessageBox::StandardButtons(QMessageBox::NoButton),
          QMessageBox::StandardButtons(QMessageBox::Ok)}) {
        const Box with(buttons, -1, QMessageBox::Warning, text);
        const Box without(buttons, -1, QMessageBox::NoIcon, text);
        QCOMPARE(with.size() - without.size(), QSize(40, 20));
    }
}

void tst_MessageBox::eventsBeforeShowingKeepTheSize()
{
    const Box box(QMessageBox::StandardButtons(0x7000 | 0x70000), 5);
    const QSize size = hintOf(QStringLiteral("保存成功")) + QSize(160, 105);
    QCOMPARE(box.size(), size);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCOMPARE(box.size(), size);
}

void tst_MessageBox::everyButton_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDefault");
    for (const StandardButtonRow& row : standardButtons)
        QTest::newRow(row.text) << row.value << QString::fromUtf8(row.text) << row.isDefault;
}

void tst_MessageBox::everyButton()
{
    QFETCH(int, value);
    QFETCH(QString, text);
    QFETCH(bool, isDefault);
    const Box box{QMessageBox::StandardButtons(value)};
    QCOMPARE(shownTexts(box), QStringList(text));
    QCOMPARE(box.btn1->text(), text);
    QCOMPARE(box.btn1->isDefault(), isDefault);
    QCOMPARE(box.btn1->minimumSize(), QSize(80, 26));
}

void tst_MessageBox::buttonsHaveAFixedOrder_data()
{
    QTest::addColumn<int>("first"); // six neighbours from here on
    QTest::addColumn<QStringList>("texts");
    for (int first = 0; first + 6 <= 18; first += 3) {
        QStringList texts;
        for (int index = first; index < first + 6; ++index)
            texts << QString::fromUtf8(standardButtons[index].text);
        QTest::addRow("from %d", first) << first << texts;
    }
}

void tst_MessageBox::buttonsHaveAFixedOrder()
{
    QFETCH(int, first);
    QFETCH(QStringList, texts);
    QMessageBox::StandardButtons forwards;
    QMessageBox::StandardButtons backwards;
    for (int index = 0; index < 6; ++index) {
        forwards |= standardButtons[first + index].button;
        backwards |= standardButtons[first + 5 - index].button;
    }
    QCOMPARE(shownTexts(Box(forwards)), texts);
    QCOMPARE(shownTexts(Box(backwards)), texts);

    const Box two(QMessageBox::Cancel | QMessageBox::Ok);
    QCOMPARE(two.btn1->text(), QStringLiteral("确定"));
    QCOMPARE(two.btn2->text(), QStringLiteral("取消"));
    for (int index = 2; index < 6; ++index)
        QVERIFY(two.btns[index]->isHidden());
}

void tst_MessageBox::theLastDefaultWins_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("winner");
    const QMessageBox::StandardButtons ok = QMessageBox::Ok;
    QTest::newRow("ok cancel") << int(ok | QMessageBox::Cancel) << QStringLiteral("确定");
    QTest::newRow("ok save") << int(ok | QMessageBox::Save) << QStringLiteral("保存");
    QTest::newRow("ok save open") << int(ok | QMessageBox::Save | QMessageBox::Open)
                                  << QStringLiteral("打开");
    QTest::newRow("all four defaults")
        << int(ok | QMessageBox::Save | QMessageBox::Open | QMessageBox::Yes | QMessageBox::No)
        << QStringLiteral("是");
    QTest::newRow("save open close")
        << int(QMessageBox::Save | QMessageBox::Open | QMessageBox::Close)
        << QStringLiteral("打开");
    QTest::newRow("none") << int(QMessageBox::No | QMessageBox::Close) << QString();
}

void tst_MessageBox::theLastDefaultWins()
{
    QFETCH(int, buttons);
    QFETCH(QString, winner);
    const Box box{QMessageBox::StandardButtons(buttons)};
    QCOMPARE(defaultTexts(box), winner.isEmpty() ? QStringList() : QStringList(winner));
}

void tst_MessageBox::seventhButton()
{
    const QMessageBox::StandardButtons seven(0x400 | 0x800 | 0x1000 | 0x2000 | 0x4000 | 0x8000
                                             | 0x10000);
#ifdef QT_NO_DEBUG
    // Without assertions the seventh is left out and nothing beyond the slots is touched.
    const Box box(seven, 4);
    QCOMPARE(
        shownTexts(box),
        QStringList({QStringLiteral("确定(4)"), QStringLiteral("保存"), QStringLiteral("全部保存"),
                     QStringLiteral("打开"), QStringLiteral("是"), QStringLiteral("全是")}));
    QCOMPARE(box.countdown, 4);
#else
    const QString report = TestSupport::fatalMessage([seven] { const Box box(seven); });
    QVERIFY2(report.contains(QStringLiteral("\"index < _countof(btns)\"")), qPrintable(report));
    QVERIFY2(report.contains(QStringLiteral("MessageBox")), qPrintable(report));
    const QString six = TestSupport::fatalMessage(
        [] { const Box box{QMessageBox::StandardButtons(0x400 | 0x7000 | 0x30000)}; });
    QCOMPARE(six, QString());
#endif
}

void tst_MessageBox::buttonTextsAreTranslated()
{
    Texts texts;
    QCoreApplication::installTranslator(&texts);
    for (const StandardButtonRow& row : standardButtons) {
        const Box box{QMessageBox::StandardButtons(row.button)};
        QCOMPARE(box.btn1->text(), QStringLiteral("CMessageBox/") + QString::fromUtf8(row.text));
    }
    QCOMPARE(Box(QMessageBox::Ok, 12).btn1->text(), QStringLiteral("CMessageBox/确定(12)"));
    QCoreApplication::removeTranslator(&texts);
}

void tst_MessageBox::resultIsThePressedButton_data() { everyButton_data(); }

void tst_MessageBox::resultIsThePressedButton()
{
    QFETCH(int, value);
    QFETCH(QString, text);
    const QMessageBox::StandardButtons more
        = value < 0x20000 ? QMessageBox::Apply | QMessageBox::Reset : QMessageBox::Yes;
    const ModalAnswer answer = ModalAnswer::clicking(text);
    QCOMPARE(CMessageBox::message(nullptr, QMessageBox::NoIcon, QStringLiteral("a"),
                                  QMessageBox::StandardButtons(value) | more),
             value);

    Box box{QMessageBox::StandardButtons(value)};
    box.onButtonClick(QMessageBox::StandardButton(value));
    QCOMPARE(box.result(), value);
}

void tst_MessageBox::staticFunctions_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("countdown");
    QTest::addColumn<int>("result"); // of the first button
    const QString application = QStringLiteral("tradeclient");
    const QStringList saveClose({QStringLiteral("保存"), QStringLiteral("关闭")});
    QTest::newRow("message") << 0 << application << saveClose << -1 << 0x800;
    QTest::newRow("message with title") << 1 << QStringLiteral("标题") << saveClose << -1 << 0x800;
    QTest::newRow("timeout") << 2 << application << QStringList(QStringLiteral("确定(7)")) << 7
                             << 0x400;
    QTest::newRow("question") << 3 << application
                              << QStringList({QStringLiteral("是"), QStringLiteral("否")}) << -1
                              << 16384;
}

void tst_MessageBox::staticFunctions()
{
    QFETCH(int, function);
    QFETCH(QString, title);
    QFETCH(QStringList, buttons);
    QFETCH(int, countdown);
    QFETCH(int, result);

    QWidget parent;
    parent.show();
    const QString text = QStringLiteral("确定现在重启吗？");
    const auto saveClose = QMessageBox::Save | QMessageBox::Close;
    const ModalAnswer answer([&](QWidget* window) {
        auto* const box = qobject_cast<CMessageBox*>(window);
        QVERIFY(box);
        QCOMPARE(box->parentWidget(), &parent);
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        QCOMPARE(box->windowTitle(), title);
        QCOMPARE(box->caption->titleLabel->text(), title);
        QCOMPARE(shownTexts(*box), buttons);
        QCOMPARE(box->countdown, countdown);
        QVERIFY(!box->icon->isHidden());
        box->btn1->click();
    });
    const std::function<int()> functions[] = {
        [&] { return CMessageBox::message(&parent, QMessageBox::Warning, text, saveClose); },
        [&] { return CMessageBox::message(&parent, QMessageBox::Warning, text, title, saveClose); },
        [&] { return CMessageBox::timeout(&parent, QMessageBox::Warning, text, 7); },
        [&] { return CMessageBox::question(&parent, QMessageBox::Warning, text); },
    };
    QCOMPARE(functions[function](), result);
    QCOMPARE(answer.text(), text);
    QVERIFY(parent.findChildren<CMessageBox*>().isEmpty());
}

void tst_MessageBox::titleOfTheStaticFunctions()
{
    const QString name = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(QStringLiteral("客户端"));
    {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        QCOMPARE(CMessageBox::question(nullptr, QMessageBox::Question, QStringLiteral("a")), 65536);
        QCOMPARE(answer.title(), QStringLiteral("客户端"));
    }
    QCoreApplication::setApplicationName(name);
}

void tst_MessageBox::closingByOtherWays_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("caption bar") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("close()") << 2;
}

void tst_MessageBox::closingByOtherWays()
{
    QFETCH(int, way);
    const ModalAnswer answer([way](QWidget* window) {
        auto* const box = static_cast<CMessageBox*>(window);
        if (way == 0)
            QTest::mouseClick(box->caption->closeButton, Qt::LeftButton);
        else if (way == 1)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            box->close();
    });
    QCOMPARE(CMessageBox::question(nullptr, QMessageBox::Question, QStringLiteral("a")), 0);
}

void tst_MessageBox::returnPressesTheDefault_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("result");
    QTest::newRow("ok cancel") << int(QMessageBox::Ok | QMessageBox::Cancel) << -1 << 0x400;
    QTest::newRow("yes no") << int(QMessageBox::Yes | QMessageBox::No) << -1 << 0x4000;
    QTest::newRow("ok save cancel")
        << int(QMessageBox::Ok | QMessageBox::Save | QMessageBox::Cancel) << -1 << 0x800;
    QTest::newRow("countdown takes the default")
        << int(QMessageBox::SaveAll | QMessageBox::Open) << 9 << 0x1000;
    QTest::newRow("no default: the first")
        << int(QMessageBox::No | QMessageBox::Close) << -1 << 0x10000;
}

void tst_MessageBox::returnPressesTheDefault()
{
    QFETCH(int, buttons);
    QFETCH(int, seconds);
    QFETCH(int, result);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Box box(QMessageBox::StandardButtons(buttons), seconds);
        const ModalAnswer answer([key](QWidget* window) {
            QWidget* const focus = window->focusWidget();
            QTest::keyClick(focus ? focus : window, key);
        });
        QCOMPARE(box.exec(), result);
    }
}

void tst_MessageBox::heldKeyAnswersNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Return") << int(Qt::Key_Return) << 0x4000;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 0x4000;
    QTest::newRow("Space") << int(Qt::Key_Space) << 0x4000;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
}

// The key that opened the box may still be down.
void tst_MessageBox::heldKeyAnswersNothing()
{
    QFETCH(int, key);
    QFETCH(int, result);
    Box box(QMessageBox::Yes | QMessageBox::No);
    box.setResult(77);
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    for (QWidget* const receiver : {static_cast<QWidget*>(box.btn1), static_cast<QWidget*>(&box)}) {
        for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent repeat(type, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(receiver, &repeat);
        }
    }
    QVERIFY(box.isVisible());
    QCOMPARE(box.result(), 77);
    // X11 sends a repeat as a release and a press of one time, which may come as they are.
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent half(type, key, Qt::NoModifier, 36, 0, 0);
        half.setTimestamp(5000);
        QCoreApplication::sendEvent(box.btn1, &half);
    }
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, 36, 0, 0);
    release.setTimestamp(5700);
    QCoreApplication::sendEvent(box.btn1, &release);
    QVERIFY(box.isVisible());
    QCOMPARE(box.result(), 77);
    // The focus still walks while a key is held.
    QKeyEvent walk(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(box.btn1, &walk);
    QCOMPARE(QApplication::focusWidget(), box.btn2);
    box.btn1->setFocus();

    QTest::keyClick(box.btn1, Qt::Key(key));
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), result);
}

void tst_MessageBox::tabWalksTheButtons()
{
    // Ok, Yes, No, Cancel, Help; the default, Yes, has the focus first.
    Box box{QMessageBox::StandardButtons(0x400 | 0x4000 | 0x10000 | 0x400000 | 0x1000000)};
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QCOMPARE(QApplication::focusWidget(), box.btn2);
    for (const int index : {2, 3, 4, 0, 1, 2}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), box.btns[index]);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), box.btn2);
    // Return presses the button that has the focus.
    QTest::keyClick(box.btn2, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(box.result(), 0x10000);
    QVERIFY(!box.isVisible());
}

void tst_MessageBox::countdownByTicks_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QStringList>("texts"); // at construction, then after each tick
    QTest::newRow("1") << 1 << QStringList({QStringLiteral("确定(1)"), QStringLiteral("确定(1)")});
    QTest::newRow("3") << 3
                       << QStringList({QStringLiteral("确定(3)"), QStringLiteral("确定(3)"),
                                       QStringLiteral("确定(2)"), QStringLiteral("确定(1)")});
    QStringList ten({QStringLiteral("确定(10)"), QStringLiteral("确定(10)")});
    for (const char digit : {'9', '8', '7', '6', '5', '4', '3', '2', '1'})
        ten << QStringLiteral("确定(%1)").arg(QLatin1Char(digit));
    QTest::newRow("10") << 10 << ten;
}

void tst_MessageBox::countdownByTicks()
{
    QFETCH(int, seconds);
    QFETCH(QStringList, texts);
    Box box(QMessageBox::Ok, seconds);
    box.show();
    QCOMPARE(box.btn1->text(), texts.takeFirst());
    QCOMPARE(box.countdown, seconds);
    for (const QString& text : qAsConst(texts)) {
        tick(box);
        QCOMPARE(box.btn1->text(), text);
        QVERIFY(box.isVisible());
    }
    // As many ticks as seconds so far; the next one, the last, closes.
    QCOMPARE(texts.size(), seconds);
    QCOMPARE(box.countdown, 0);
    tick(box);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), 1024);
}

void tst_MessageBox::noCountdown_data()
{
    QTest::addColumn<int>("seconds");
    QTest::newRow("-1") << -1;
    QTest::newRow("0") << 0;
    QTest::newRow("-100") << -100;
}

void tst_MessageBox::noCountdown()
{
    QFETCH(int, seconds);
    const Box box(QMessageBox::SaveAll, seconds);
    QCOMPARE(box.btn1->text(), QStringLiteral("全部保存"));
    QVERIFY(!box.btn1->isDefault());
    QCOMPARE(box.countdown, seconds);
    QVERIFY(
        QAbstractEventDispatcher::instance()->registeredTimers(const_cast<Box*>(&box)).isEmpty());
}

void tst_MessageBox::countdownTakesTheFirstButton()
{
    // Whatever the first slot holds shows the countdown and is the default; the end is Ok.
    Box box(QMessageBox::Yes | QMessageBox::No, 2);
    QCOMPARE(shownTexts(box), QStringList({QStringLiteral("确定(2)"), QStringLiteral("否")}));
    QCOMPARE(defaultTexts(box), QStringList(QStringLiteral("确定(2)")));
    Box other(QMessageBox::SaveAll | QMessageBox::Open, 2);
    QCOMPARE(defaultTexts(other), QStringList(QStringLiteral("确定(2)")));
    box.show();
    for (int count = 0; count < 3; ++count)
        tick(box);
    QCOMPARE(box.result(), 0x400);
    // Pressed by hand it keeps its own value.
    other.btn1->click();
    QCOMPARE(other.result(), 0x1000);
}

void tst_MessageBox::countdownEndsExec()
{
    const ModalAnswer answer([](QWidget* window) {
        auto* const box = static_cast<CMessageBox*>(window);
        for (int count = 0; count < 4; ++count) {
            QVERIFY(box->isVisible());
            tick(*box);
        }
        QVERIFY(!box->isVisible());
    });
    QCOMPARE(CMessageBox::timeout(nullptr, QMessageBox::Information, QStringLiteral("a"), 3), 1024);
}

void tst_MessageBox::timerRunsEverySecond()
{
    Box box(QMessageBox::Ok, 3);
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&box);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst().interval, 1000);
    QCOMPARE(timers.constFirst().timerType, Qt::CoarseTimer);
}

void tst_MessageBox::painting()
{
    Box box(QMessageBox::Ok);
    box.resize(300, 140);
    QPixmap pixmap(300, 140);
    box.render(&pixmap);
    RecordingSkin::takeCalls();
    box.render(&pixmap, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    QCOMPARE(RecordingSkin::takeCalls(),
             QStringList({QStringLiteral("fillRect 0,0,300,140 PopupClient"),
                          QStringLiteral("drawRect 0,0,300,140 PopupBorder 1 1")}));

    box.render(&pixmap);
    const QStringList all = RecordingSkin::takeCalls();
    QCOMPARE(all.value(0), QStringLiteral("fillRect 0,0,300,140 PopupClient"));
    // Modal, so the caption is a popup's; it leaves the outline free.
    QVERIFY(all.contains(QStringLiteral("fillRect 0,0,298,30 PopupCaption")));
    QCOMPARE(box.caption->pos(), QPoint(1, 1));
}

void tst_MessageBox::textIsShownAsItIs()
{
    for (const QString& text :
         {QStringLiteral("<b>价格</b> < 5"), QStringLiteral("a &b"), QStringLiteral("<br><br>")}) {
        const Box box(QMessageBox::Ok, -1, QMessageBox::NoIcon, text);
        QCOMPARE(box.msg->text(), text);
        QCOMPARE(box.msg->sizeHint(), hintOf(text));
    }
}

void tst_MessageBox::longWordIsBroken()
{
    const QString word = repeated(QStringLiteral("W"), 1000);
    const int widest = 80 * QFontMetrics(QApplication::font()).averageCharWidth();
    QVERIFY(hintOf(word).width() > 3 * widest);
    for (const QString& text : {word, QStringLiteral("订单号 ") + word + QStringLiteral(" 有误")}) {
        Box box(QMessageBox::Ok, -1, QMessageBox::Warning, text);
        QCOMPARE(box.msg->text(), text);
        const QSize hint = box.msg->sizeHint();
        QCOMPARE(hint.width(), widest);
        QCOMPARE(box.size(), hint + QSize(200, 125));
        box.show();
        QCOMPARE(box.size(), hint + QSize(200, 125));

        // Every letter leaves its ink: as much as the same letters in one endless line.
        const auto ink = [](QWidget& widget) {
            const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QRgb paper = image.pixel(image.width() - 1, image.height() - 1);
            qint64 sum = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    sum += qAbs(qGray(image.pixel(x, y)) - qGray(paper));
            }
            return double(sum);
        };
        QLabel endless(text);
        endless.resize(endless.sizeHint());
        const double ratio = ink(*box.msg) / ink(endless);
        QVERIFY2(ratio > 0.9 && ratio < 1.1, qPrintable(QString::number(ratio)));
    }
}

void tst_MessageBox::nothingIsCut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("buttons");
    const int six = 0x400 | 0x1000 | 0x8000 | 0x10000 | 0x20000 | 0x8000000;
    const std::pair<const char*, int> buttonSets[]
        = {{"no button", 0}, {"one button", 0x400}, {"six buttons", six}};
    const std::pair<const char*, QString> texts[] = {
        {"empty", QString()},
        {"short", QStringLiteral("保存成功")},
        {"twenty lines", lines(20)},
        {"long", repeated(QStringLiteral("数量不能大于上限，"), 40)},
        {"long word", repeated(QStringLiteral("0123456789"), 60)},
    };
    for (const auto& buttons : buttonSets) {
        for (const auto& text : texts)
            QTest::addRow("%s, %s", text.first, buttons.first) << text.second << buttons.second;
    }
}

void tst_MessageBox::nothingIsCut()
{
    QFETCH(QString, text);
    QFETCH(int, buttons);
    for (const QMessageBox::Icon iconKind : {QMessageBox::NoIcon, QMessageBox::Critical}) {
        Box box(QMessageBox::StandardButtons(buttons), -1, iconKind, text);
        const QSize computed = box.size();
        box.show();
        QVERIFY(box.width() >= computed.width() && box.height() >= computed.height());
        QVERIFY(box.msg->width() >= box.msg->sizeHint().width());
        QVERIFY(box.msg->height() >= box.msg->heightForWidth(box.msg->width()));
        if (iconKind != QMessageBox::NoIcon) {
            const QSize picture = box.icon->pixmap(Qt::ReturnByValue).size();
            QVERIFY(box.icon->width() >= picture.width());
            QVERIFY(box.icon->height() >= picture.height());
            QVERIFY(box.icon->geometry().right() < box.msg->x());
        }
        for (const QPushButton* button : box.btns) {
            if (button->isHidden())
                continue;
            QVERIFY(button->width() >= button->sizeHint().width());
            QVERIFY(button->height() >= button->sizeHint().height());
            QVERIFY(box.rect().adjusted(8, 8, -8, -8).contains(button->geometry()));
            QVERIFY(button->y() > box.msg->geometry().bottom());
        }
        QVERIFY(box.msg->y() > box.caption->geometry().bottom());
        // One button, or none, needs no more room than was computed.
        if (buttons == 0x400)
            QCOMPARE(box.size(), computed);
    }
}

void tst_MessageBox::nothingIsCutInAnyText()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QString letters = QStringLiteral("委托数量价格，。（）abcdefgWil0123456789-/.");
    for (int round = 0; round < 200; ++round) {
        QString text;
        const int words = random.bounded(1, 60);
        for (int word = 0; word < words; ++word) {
            const int length = random.bounded(20) == 0 ? random.bounded(300) : random.bounded(12);
            for (int index = 0; index < length; ++index)
                text += letters.at(random.bounded(letters.size()));
            text += QLatin1Char(random.bounded(10) == 0 ? '\n' : ' ');
        }
        const auto iconKind = random.bounded(2) == 0 ? QMessageBox::NoIcon : QMessageBox::Warning;
        Box box(QMessageBox::Ok | QMessageBox::Cancel, -1, iconKind, text);
        const QSize computed = box.size();
        box.show();
        QVERIFY2(box.msg->height() >= box.msg->heightForWidth(box.msg->width()), qPrintable(text));
        QVERIFY2(box.size() == computed.expandedTo(box.size()), qPrintable(text));
        QVERIFY2(box.width() < 1300, qPrintable(text));
    }
}

void tst_MessageBox::nothingIsCutInAnySize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("iconKind");
    QTest::addColumn<int>("buttons");
    const QString words = repeated(QStringLiteral("Some changes need a restart. "), 10);
    for (const int iconKind : {int(QMessageBox::NoIcon), int(QMessageBox::Warning)}) {
        QTest::addRow("lines %d", iconKind) << lines(5) << iconKind << 0x400;
        QTest::addRow("words %d", iconKind) << words << iconKind << 0x14000;
        QTest::addRow("one line %d", iconKind)
            << QStringLiteral("部分修改需要重启后生效，确定现在重启吗？") << iconKind << 0x14000;
        QTest::addRow("no button %d", iconKind) << words << iconKind << 0;
    }
}

// A window manager may give a box another size than it asked for.
void tst_MessageBox::nothingIsCutInAnySize()
{
    QFETCH(QString, text);
    QFETCH(int, iconKind);
    QFETCH(int, buttons);
    Box box(QMessageBox::StandardButtons(buttons), -1, QMessageBox::Icon(iconKind), text);
    box.show();
    const QSize least = box.minimumSizeHint();
    // Caption, outline, margins and buttons.
    const int others = 30 + 2 + 26 + 14 + (buttons == 0 ? 0 : box.btn1->height());
    int fitting = 0;
    for (int width = least.width(); width < least.width() + 500; width += 17) {
        for (int height = least.height(); height < least.height() + 500; height += 19) {
            box.resize(width, height);
            QCOMPARE(box.size(), QSize(width, height));
            const int needed = box.msg->heightForWidth(box.msg->width());
            if (needed > height - others)
                continue;
            ++fitting;
            QVERIFY(box.msg->height() >= needed);
            QVERIFY(box.msg->y() > box.caption->geometry().bottom());
            if (buttons != 0) {
                QVERIFY(box.btn1->y() > box.msg->geometry().bottom());
                QCOMPARE(box.btn1->geometry().bottom(), height - 1 - 14 - 1);
            }
            if (iconKind != int(QMessageBox::NoIcon)) {
                QCOMPARE(box.icon->y(), box.msg->y());
                QVERIFY(box.icon->height() >= 32);
            }
        }
    }
    QVERIFY(fitting > 200);
}

void tst_MessageBox::iconStandsAtTheFirstLine()
{
    Box twenty(QMessageBox::Ok, -1, QMessageBox::Warning, lines(20));
    twenty.show();
    QCOMPARE(twenty.icon->y(), twenty.msg->y());
    QVERIFY(twenty.icon->alignment().testFlag(Qt::AlignTop));
    // A single line stands at the middle of the icon.
    Box one(QMessageBox::Ok, -1, QMessageBox::Warning);
    one.show();
    QCOMPARE(one.icon->geometry().center().y(), one.msg->geometry().center().y());
    QCOMPARE(one.icon->height(), one.icon->pixmap(Qt::ReturnByValue).height());
}

void tst_MessageBox::buttonsKeepInsideTheBox()
{
    Box box{QMessageBox::StandardButtons(0x400 | 0x1000 | 0x8000 | 0x10000 | 0x20000 | 0x8000000)};
    box.show();
    int right = 0;
    for (const QPushButton* button : box.btns) {
        QVERIFY(button->isVisible());
        QVERIFY(button->x() >= right + 8);
        right = button->geometry().right();
    }
    QVERIFY(right < box.width() - 8);
}

TRADECONFIG_TEST_MAIN(tst_MessageBox)
#include "tst_MessageBox.moc"
