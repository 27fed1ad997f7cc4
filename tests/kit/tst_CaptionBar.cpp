#include "support/ModalAnswer.h"
#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/ImageButton.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QTranslator>

class tst_CaptionBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void partsByWindowFlags_data();
    void partsByWindowFlags();
    void isDialogNeedsEveryBit_data();
    void isDialogNeedsEveryBit();
    void partsAreSetUp();
    void partsStandInARow();
    void buttonsStandAtTheEndWithoutTitle();
    void titleFollowsTheWindow();
    void titleMayBeAbsent();
    void titleIsShownAsItIs();
    void titleIsNotCut();
    void titleFontFollowsTheWindow();
    void widgetsAndItemsAreAppended();
    void addedPartsGetTheRoomTheyAskFor_data();
    void addedPartsGetTheRoomTheyAskFor();
    void stretchedWidgetGetsTheRoom();
    void expandingItemGetsTheRoom();
    void expandingWidgetComesAndGoes();
    void textsAreTranslated();
    void minimizes();
    void maximizesAndRestores();
    void maximizeButtonAtConstruction();
    void stateChangesArePassedOn();
    void onlyTheWindowsStateCounts();
    void closes_data();
    void closes();
    void closingAModalDialogRejectsIt();
    void nothingWithoutATopLevelWindow();
    void dragging();
    void dragStopsAtTheOrigin_data();
    void dragStopsAtTheOrigin();
    void noDragWhileItFillsTheScreen_data();
    void noDragWhileItFillsTheScreen();
    void noDragWithoutOffset();
    void titleIsAHandleToo();
    void doubleClick_data();
    void doubleClick();
    void painting_data();
    void painting();
    void frameChangeRepaints();
    void dragFollowsWhereTheWindowWent();
    void dragStartsWhereTheWindowReallyIs_data();
    void dragStartsWhereTheWindowReallyIs();
    void titleMakesRoom();
    void addedPartsAreLaidOut();
    void filterOnlyWithAMaximizeButton();
};

namespace {

constexpr Qt::WindowFlags AllHints = Qt::WindowSystemMenuHint | Qt::WindowTitleHint
    | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint;

// A window that has exactly the hints of @p hints, with a caption bar.
struct Framed {
    explicit Framed(Qt::WindowFlags hints = AllHints, Qt::WindowFlags type = Qt::Window)
    {
        // The toolkit would add hints to those that a constructor is given.
        window.overrideWindowFlags(type | Qt::FramelessWindowHint | hints);
        bar = new CCaptionBar(&window);
        window.setGeometry(200, 150, 400, 300);
        bar->setGeometry(0, 0, 400, 30);
    }

    QWidget window;
    CCaptionBar* bar = nullptr;
};

void mouse(QWidget* widget, QEvent::Type type, QPoint global,
           Qt::MouseButton button = Qt::LeftButton)
{
    const QPoint local = widget->mapFromGlobal(global);
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, local, local, global, isMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

QStringList paintedAlone(CCaptionBar& bar)
{
    QPixmap pixmap(bar.size());
    RecordingSkin::takeCalls();
    bar.render(&pixmap, QPoint(), QRegion(), QWidget::RenderFlags());
    return RecordingSkin::takeCalls();
}

QString paintedButton(CImageButton* button)
{
    RecordingSkin::takeCalls();
    button->grab();
    return RecordingSkin::takeCalls().join(QLatin1Char('\n'));
}

template <typename Window> class Watched : public Window {
public:
    using Window::Window;
    int closed = 0;
    int stateChanges = 0;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++closed;
        Window::closeEvent(event);
    }
    void changeEvent(QEvent* event) override
    {
        stateChanges += event->type() == QEvent::WindowStateChange;
        Window::changeEvent(event);
    }
};

class Texts : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void tst_CaptionBar::init() { RecordingSkin::reset(); }

void tst_CaptionBar::partsByWindowFlags_data()
{
    QTest::addColumn<int>("parts");
    for (int parts = 0; parts < 32; ++parts)
        QTest::addRow("%d", parts) << parts;
}

void tst_CaptionBar::partsByWindowFlags()
{
    QFETCH(int, parts);

    Qt::WindowFlags hints;
    hints.setFlag(Qt::WindowSystemMenuHint, parts & 1);
    hints.setFlag(Qt::WindowTitleHint, parts & 2);
    hints.setFlag(Qt::WindowMinimizeButtonHint, parts & 4);
    hints.setFlag(Qt::WindowMaximizeButtonHint, parts & 8);
    hints.setFlag(Qt::WindowCloseButtonHint, parts & 16);
    Framed framed(hints);
    const CCaptionBar& bar = *framed.bar;

    QCOMPARE(bar.logoButton != nullptr, (parts & 1) != 0);
    QCOMPARE(bar.titleLabel != nullptr, (parts & 2) != 0);
    QCOMPARE(bar.minimizeButton != nullptr, (parts & 4) != 0);
    QCOMPARE(bar.maximizeButton != nullptr, (parts & 8) != 0);
    QCOMPARE(bar.closeButton != nullptr, (parts & 16) != 0);
    QVERIFY(bar.buttonLayout);
    QVERIFY(bar.frameEnabled);
    QVERIFY(!bar.isDialog);
    QVERIFY(bar.dragOffset.isNull());

    const int shown = ((parts >> 2) & 1) + ((parts >> 3) & 1) + ((parts >> 4) & 1);
    QCOMPARE(bar.buttonLayout->count(), shown);
    QCOMPARE(bar.findChildren<QAbstractButton*>().size(), shown + (parts & 1));
    QCOMPARE(bar.findChildren<QLabel*>().size(), (parts >> 1) & 1);
}

void tst_CaptionBar::isDialogNeedsEveryBit_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isDialog");
    QTest::newRow("Window") << int(Qt::Window) << false;
    QTest::newRow("Dialog") << int(Qt::Dialog) << true;
    QTest::newRow("Sheet") << int(Qt::Sheet) << false;
    QTest::newRow("Popup") << int(Qt::Popup) << false;
    QTest::newRow("Tool") << int(Qt::Tool) << true;
    QTest::newRow("ToolTip") << int(Qt::ToolTip) << false;
}

void tst_CaptionBar::isDialogNeedsEveryBit()
{
    QFETCH(int, type);
    QFETCH(bool, isDialog);
    QCOMPARE(Framed(AllHints, Qt::WindowFlags(type)).bar->isDialog, isDialog);
    // The window counts, not the widget that the bar was made for.
    QWidget window(nullptr, Qt::WindowFlags(type));
    QWidget inner(&window);
    const CCaptionBar bar(&inner);
    QCOMPARE(bar.parentWidget(), &inner);
    QCOMPARE(bar.isDialog, isDialog);
}

void tst_CaptionBar::partsAreSetUp()
{
    Framed framed;
    CCaptionBar& bar = *framed.bar;

    QCOMPARE(bar.layout()->contentsMargins(), QMargins(5, 3, 5, 3));
    QVERIFY(qobject_cast<QHBoxLayout*>(bar.layout()));
    QCOMPARE(bar.buttonLayout->spacing(), 10);
    QCOMPARE(bar.titleLabel->height(), 14);
    QCOMPARE(bar.titleLabel->minimumHeight(), 14);
    QCOMPARE(bar.titleLabel->maximumHeight(), 14);
    QCOMPARE(bar.titleLabel->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(bar.titleLabel->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(bar.titleLabel->alignment(), Qt::AlignVCenter);

    struct Row {
        CImageButton* button;
        int size;
        const char* toolTip;
        const char* drawn;
    };
    const Row rows[] = {
        {bar.logoButton, 12, "", "drawImage 0,0,12,12 logo 1 0 false true"},
        {bar.minimizeButton, 14, "最小化", "drawImage 0,0,14,14 win_minimize 3 0 true false"},
        {bar.maximizeButton, 14, "最大化", "drawImage 0,0,14,14 win_normal 3 0 true false"},
        {bar.closeButton, 14, "关闭", "drawImage 0,0,14,14 PanelClose 1 0 false false"},
    };
    for (const Row& row : rows) {
        QCOMPARE(row.button->minimumSize(), QSize(row.size, row.size));
        QCOMPARE(row.button->maximumSize(), QSize(row.size, row.size));
        QCOMPARE(row.button->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(row.button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(row.button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(row.button->toolTip(), QString::fromUtf8(row.toolTip));
        QCOMPARE(paintedButton(row.button), QString::fromUtf8(row.drawn));
        QVERIFY(!row.button->accessibleName().isEmpty());
    }
    QCOMPARE(bar.minimizeButton->accessibleName(), QStringLiteral("最小化"));
    QCOMPARE(bar.maximizeButton->accessibleName(), QStringLiteral("最大化"));
    QCOMPARE(bar.closeButton->accessibleName(), QStringLiteral("关闭"));

    // "PanelClose" serves every state.
    QCOMPARE(bar.closeButton->hoverImage, QStringLiteral("PanelClose"));
    QCOMPARE(bar.closeButton->pressedImage, QStringLiteral("PanelClose"));
    QCOMPARE(bar.closeButton->disabledImage, QStringLiteral("PanelClose"));
}

void tst_CaptionBar::partsStandInARow()
{
    Framed framed;
    const CCaptionBar& bar = *framed.bar;
    framed.window.show();
    QCOMPARE(bar.logoButton->geometry(), QRect(5, 9, 12, 12));
    QCOMPARE(bar.closeButton->geometry(), QRect(381, 8, 14, 14));
    QCOMPARE(bar.maximizeButton->geometry(), QRect(357, 8, 14, 14));
    QCOMPARE(bar.minimizeButton->geometry(), QRect(333, 8, 14, 14));
    QCOMPARE(bar.titleLabel->y(), 8);
    QVERIFY(bar.titleLabel->x() > 17 && bar.titleLabel->x() < 30);
    QVERIFY(bar.titleLabel->width() > 290);
}

void tst_CaptionBar::buttonsStandAtTheEndWithoutTitle()
{
    Framed framed(Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    framed.window.show();
    QCOMPARE(framed.bar->closeButton->geometry(), QRect(381, 8, 14, 14));
    QCOMPARE(framed.bar->minimizeButton->geometry(), QRect(357, 8, 14, 14));

    Framed hidden;
    hidden.bar->setTitleEnabled(false);
    hidden.window.show();
    QVERIFY(!hidden.bar->titleLabel->isVisible());
    QCOMPARE(hidden.bar->logoButton->geometry(), QRect(5, 9, 12, 12));
    QCOMPARE(hidden.bar->closeButton->geometry(), QRect(381, 8, 14, 14));
    hidden.bar->setTitleEnabled(true);
    QVERIFY(hidden.bar->titleLabel->isVisible());
    QCOMPARE(hidden.bar->closeButton->geometry(), QRect(381, 8, 14, 14));
}

void tst_CaptionBar::titleFollowsTheWindow()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("交易设置"));
    CCaptionBar bar(&window);
    QCOMPARE(bar.titleLabel->text(), QStringLiteral("交易设置"));
    window.setWindowTitle(QStringLiteral("系统设置"));
    QCOMPARE(bar.titleLabel->text(), QStringLiteral("系统设置"));
    bar.setTitle("快捷键设置");
    QCOMPARE(bar.titleLabel->text(), QStringLiteral("快捷键设置"));
    QCOMPARE(window.windowTitle(), QStringLiteral("系统设置"));
    window.setWindowTitle(QStringLiteral("提示"));
    QCOMPARE(bar.titleLabel->text(), QStringLiteral("提示"));
}

void tst_CaptionBar::titleMayBeAbsent()
{
    Framed framed(Qt::WindowCloseButtonHint);
    framed.bar->setTitle("x");
    framed.bar->setTitleEnabled(false);
    framed.bar->setTitleEnabled(true);
    framed.window.setWindowTitle(QStringLiteral("y"));
    QVERIFY(framed.bar->findChildren<QLabel*>().isEmpty());
}

void tst_CaptionBar::titleIsShownAsItIs()
{
    Framed framed;
    QLabel plain(QString(), &framed.window);
    plain.setTextFormat(Qt::PlainText);
    plain.setFont(framed.bar->titleLabel->font());
    for (const QString& title :
         {QStringLiteral("<b>a</b>"), QStringLiteral("a & b"), QStringLiteral("价格 < 5")}) {
        framed.window.setWindowTitle(title);
        plain.setText(title);
        QCOMPARE(framed.bar->titleLabel->text(), title);
        QCOMPARE(framed.bar->titleLabel->sizeHint().width(), plain.sizeHint().width());
    }
}

void tst_CaptionBar::titleIsNotCut()
{
    // As much ink in its fixed height as with room to spare, whatever the application's font.
    const auto ink = [](QWidget& widget) {
        const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
        qint64 sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                sum += qAbs(qGray(image.pixel(x, y)) - qGray(image.pixel(0, 0)));
        }
        return sum;
    };
    const QFont usual = QApplication::font();
    for (const int points : {9, 12, 18}) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        QWidget window;
        window.setWindowTitle(QStringLiteral("交易设置 Ägjpqy"));
        CCaptionBar bar(&window);
        bar.resize(400, 30);
        bar.grab();
        QLabel roomy(window.windowTitle());
        roomy.setFont(bar.titleLabel->font());
        roomy.setAlignment(Qt::AlignVCenter);
        roomy.resize(bar.titleLabel->width(), 40);
        QCOMPARE(bar.titleLabel->height(), 14);
        QVERIFY(ink(roomy) > 0);
        QCOMPARE(ink(*bar.titleLabel), ink(roomy));
    }
    QApplication::setFont(usual);
}

void tst_CaptionBar::titleFontFollowsTheWindow()
{
    Framed framed;
    framed.window.show();
    const QLabel& title = *framed.bar->titleLabel;
    const QFont usual = title.font();
    const auto height = [&title] { return QFontMetrics(title.font()).height(); };
    QFont font = framed.window.font();

    font.setPixelSize(40);
    font.setBold(true);
    framed.window.setFont(font);
    QVERIFY(height() <= 14);
    QVERIFY(QFontInfo(title.font()).pixelSize() >= 9);
    QVERIFY(title.font().bold());
    const QFont largest = title.font();

    font.setPixelSize(7);
    font.setBold(false);
    framed.window.setFont(font);
    QCOMPARE(QFontInfo(title.font()).pixelSize(), 7);
    QVERIFY(!title.font().bold());

    font.setPixelSize(60);
    font.setBold(true);
    framed.window.setFont(font);
    QCOMPARE(QFontInfo(title.font()).pixelSize(), QFontInfo(largest).pixelSize());

    framed.window.setFont(QFont());
    QCOMPARE(title.font(), usual);

    // The bar's own font, and that of the application.
    font.setPixelSize(8);
    framed.bar->setFont(font);
    QCOMPARE(QFontInfo(title.font()).pixelSize(), 8);
    framed.bar->setFont(QFont());
    const QFont application = QApplication::font();
    QApplication::setFont(font);
    QCOMPARE(QFontInfo(title.font()).pixelSize(), 8);
    QApplication::setFont(application);
    QCOMPARE(title.font(), usual);

    Framed untitled(Qt::WindowCloseButtonHint);
    untitled.window.setFont(font);
    QVERIFY(!untitled.bar->titleLabel);
}

void tst_CaptionBar::widgetsAndItemsAreAppended()
{
    Framed framed;
    CCaptionBar& bar = *framed.bar;
    QWidget elsewhere;
    auto* const widget = new QWidget(&elsewhere);
    widget->setFixedSize(20, 10);
    bar.addCaptionWidget(widget);
    QCOMPARE(widget->parentWidget(), &bar);
    QCOMPARE(bar.buttonLayout->count(), 4);
    QCOMPARE(bar.buttonLayout->itemAt(3)->widget(), widget);
    QCOMPARE(bar.buttonLayout->itemAt(3)->alignment(), Qt::AlignVCenter);

    // It is a child by now; neither it nor a button is added twice.
    bar.addCaptionWidget(widget);
    bar.addCaptionWidget(bar.closeButton);
    QCOMPARE(bar.buttonLayout->count(), 4);

    auto* const item = new QSpacerItem(30, 5, QSizePolicy::Fixed);
    bar.addCaptionItem(item);
    QCOMPARE(bar.buttonLayout->count(), 5);
    QCOMPARE(bar.buttonLayout->itemAt(4), item);

    framed.window.show();
    QCOMPARE(widget->geometry(), QRect(345, 10, 20, 10));
    QCOMPARE(bar.closeButton->x(), 321);
}

void tst_CaptionBar::addedPartsGetTheRoomTheyAskFor_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("hints"); // which parts there are
    QTest::addColumn<bool>("getsTheRest");
    const int all = int(AllHints);
    const int noTitle = int(AllHints & ~Qt::WindowTitleHint);
    QTest::newRow("Expanding") << int(QSizePolicy::Expanding) << all << true;
    QTest::newRow("MinimumExpanding") << int(QSizePolicy::MinimumExpanding) << all << true;
    QTest::newRow("Ignored") << int(QSizePolicy::Ignored) << all << true;
    QTest::newRow("Preferred") << int(QSizePolicy::Preferred) << all << false;
    QTest::newRow("Minimum") << int(QSizePolicy::Minimum) << all << false;
    QTest::newRow("Fixed") << int(QSizePolicy::Fixed) << all << false;
    QTest::newRow("Expanding, no title") << int(QSizePolicy::Expanding) << noTitle << true;
    QTest::newRow("Preferred, no title") << int(QSizePolicy::Preferred) << noTitle << false;
    QTest::newRow("Expanding, alone") << int(QSizePolicy::Expanding) << 0 << true;
}

void tst_CaptionBar::addedPartsGetTheRoomTheyAskFor()
{
    QFETCH(int, policy);
    QFETCH(int, hints);
    QFETCH(bool, getsTheRest);
    class Hinted : public QWidget {
    public:
        QSize sizeHint() const override { return {50, 12}; }
    };
    Framed framed{Qt::WindowFlags(hints)};
    const CCaptionBar& bar = *framed.bar;
    framed.window.setWindowTitle(QStringLiteral("交易设置"));
    auto* const added = new Hinted;
    added->setSizePolicy(QSizePolicy::Policy(policy), QSizePolicy::Fixed);
    framed.bar->addCaptionWidget(added);
    framed.window.show();
    added->show();
    QCoreApplication::sendPostedEvents();

    // At the end of the row, whatever its width.
    QCOMPARE(added->geometry().right(), 400 - 5 - 1);
    QCOMPARE(added->height(), 12);
    if (!getsTheRest) {
        QCOMPARE(added->width(), 50);
        return;
    }
    // The title has what it needs and the buttons what they are; the rest is the widget's.
    const int needed = bar.titleLabel ? bar.titleLabel->sizeHint().width() : 0;
    if (bar.titleLabel)
        QCOMPARE(bar.titleLabel->width(), needed);
    const int buttons = hints == 0 ? 0 : 3 * 14 + 3 * 10;
    const int logo = hints == 0 ? 0 : 12;
    QVERIFY(added->width() <= 400 - 10 - logo - needed - buttons);
    QVERIFY(added->width() > 400 - 10 - logo - needed - buttons - 30); // spacing between the parts
}

void tst_CaptionBar::stretchedWidgetGetsTheRoom()
{
    Framed framed;
    framed.window.setWindowTitle(QStringLiteral("交易设置"));
    auto* const label = new QLabel(QStringLiteral("状态"));
    QSizePolicy policy = label->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
    framed.bar->addCaptionWidget(label);
    framed.window.show();
    label->show();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(label->width(), label->sizeHint().width());
    policy.setHorizontalStretch(1);
    label->setSizePolicy(policy);
    QCoreApplication::sendPostedEvents();
    QVERIFY(label->width() > 200);
    QCOMPARE(framed.bar->titleLabel->width(), framed.bar->titleLabel->sizeHint().width());
}

void tst_CaptionBar::expandingItemGetsTheRoom()
{
    Framed framed;
    framed.window.setWindowTitle(QStringLiteral("交易设置"));
    framed.bar->addCaptionItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    auto* const last = new QWidget;
    last->setFixedSize(20, 10);
    framed.bar->addCaptionWidget(last);
    framed.window.show();
    QCOMPARE(framed.bar->titleLabel->width(), framed.bar->titleLabel->sizeHint().width());
    QCOMPARE(last->geometry(), QRect(375, 10, 20, 10));
    QVERIFY(framed.bar->closeButton->geometry().right() < 200);
}

void tst_CaptionBar::expandingWidgetComesAndGoes()
{
    Framed framed;
    framed.window.setWindowTitle(QStringLiteral("交易设置"));
    auto* const edit = new QLineEdit;
    edit->hide();
    framed.bar->addCaptionWidget(edit);
    framed.window.show();
    QCOMPARE(framed.bar->closeButton->geometry(), QRect(381, 8, 14, 14));
    const int alone = framed.bar->titleLabel->width();
    QVERIFY(alone > 290);
    edit->show();
    QCoreApplication::sendPostedEvents();
    QVERIFY(edit->width() > 200);
    edit->hide();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(framed.bar->titleLabel->width(), alone);
    // A longer title takes from the edit, not the other way round.
    edit->show();
    framed.window.setWindowTitle(QStringLiteral("交易设置交易设置交易设置"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(framed.bar->titleLabel->width(), framed.bar->titleLabel->sizeHint().width());
    delete edit;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(framed.bar->titleLabel->width(), alone);
}

void tst_CaptionBar::textsAreTranslated()
{
    Texts texts;
    QCoreApplication::installTranslator(&texts);
    Framed framed;
    QCOMPARE(framed.bar->minimizeButton->toolTip(), QStringLiteral("CCaptionBar/最小化"));
    QCOMPARE(framed.bar->maximizeButton->toolTip(), QStringLiteral("CCaptionBar/最大化"));
    QCOMPARE(framed.bar->closeButton->toolTip(), QStringLiteral("CCaptionBar/关闭"));
    framed.window.showMaximized();
    QCOMPARE(framed.bar->maximizeButton->toolTip(), QStringLiteral("CCaptionBar/还原"));
    QCoreApplication::removeTranslator(&texts);
}

void tst_CaptionBar::minimizes()
{
    Framed framed;
    framed.window.show();
    framed.bar->minimizeButton->click();
    QVERIFY(framed.window.isMinimized());
    framed.window.showNormal();
    framed.bar->clickMinimize();
    QVERIFY(framed.window.isMinimized());
}

void tst_CaptionBar::maximizesAndRestores()
{
    Framed framed;
    framed.window.show();
    CImageButton* const button = framed.bar->maximizeButton;
    button->click();
    QVERIFY(framed.window.isMaximized());
    QCOMPARE(button->toolTip(), QStringLiteral("还原"));
    QCOMPARE(button->accessibleName(), QStringLiteral("还原"));
    QCOMPARE(paintedButton(button), QStringLiteral("drawImage 0,0,14,14 win_renew 3 0 true false"));
    button->click();
    QVERIFY(!framed.window.isMaximized());
    QCOMPARE(button->toolTip(), QStringLiteral("最大化"));
    QCOMPARE(button->accessibleName(), QStringLiteral("最大化"));
    QCOMPARE(paintedButton(button),
             QStringLiteral("drawImage 0,0,14,14 win_normal 3 0 true false"));

    // Not only through the bar.
    framed.window.showMaximized();
    QCOMPARE(button->toolTip(), QStringLiteral("还原"));
    framed.window.showFullScreen();
    framed.window.showNormal();
    QCOMPARE(button->toolTip(), QStringLiteral("最大化"));
}

void tst_CaptionBar::maximizeButtonAtConstruction()
{
    QWidget window;
    window.showMaximized();
    const CCaptionBar bar(&window);
    QCOMPARE(bar.maximizeButton->toolTip(), QStringLiteral("还原"));
    QCOMPARE(bar.maximizeButton->normalImage, QStringLiteral("win_renew"));
}

void tst_CaptionBar::stateChangesArePassedOn()
{
    Watched<QWidget> window;
    const CCaptionBar bar(&window);
    window.show();
    window.stateChanges = 0;
    window.setWindowState(Qt::WindowMaximized);
    QVERIFY(window.stateChanges > 0);
    QEvent event(QEvent::WindowStateChange);
    QVERIFY(!const_cast<CCaptionBar&>(bar).eventFilter(&window, &event));
}

void tst_CaptionBar::onlyTheWindowsStateCounts()
{
    Framed framed;
    framed.bar->maximizeButton->setToolTip(QStringLiteral("untouched"));
    QEvent other(QEvent::WindowTitleChange);
    QVERIFY(!framed.bar->eventFilter(&framed.window, &other));
    QCOMPARE(framed.bar->maximizeButton->toolTip(), QStringLiteral("untouched"));
    QEvent change(QEvent::WindowStateChange);
    QVERIFY(!framed.bar->eventFilter(framed.bar, &change));
    QCOMPARE(framed.bar->maximizeButton->toolTip(), QStringLiteral("untouched"));
    QVERIFY(!framed.bar->eventFilter(&framed.window, &change));
    QCOMPARE(framed.bar->maximizeButton->toolTip(), QStringLiteral("最大化"));
}

void tst_CaptionBar::closes_data()
{
    QTest::addColumn<bool>("isQDialog");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("modality");
    QTest::addColumn<int>("closeEvents");
    const int none = Qt::NonModal;
    const int whole = Qt::ApplicationModal;
    const int window = Qt::WindowModal;
    QTest::newRow("modeless dialog") << true << int(Qt::Dialog) << none << 1;
    QTest::newRow("modal dialog") << true << int(Qt::Dialog) << whole << 0;
    QTest::newRow("window-modal dialog") << true << int(Qt::Dialog) << window << 0;
    // Without the dialog's flags a modal window is closed.
    QTest::newRow("modal QDialog as window") << true << int(Qt::Window) << whole << 1;
    QTest::newRow("modal plain widget") << false << int(Qt::Dialog) << whole << 1;
    QTest::newRow("window") << false << int(Qt::Window) << none << 1;
}

void tst_CaptionBar::closes()
{
    QFETCH(bool, isQDialog);
    QFETCH(int, type);
    QFETCH(int, modality);
    QFETCH(int, closeEvents);

    const auto check = [&](auto& window) {
        CCaptionBar bar(&window);
        window.setWindowModality(Qt::WindowModality(modality));
        window.show();
        window.closed = 0;
        QTest::mouseClick(bar.closeButton, Qt::LeftButton);
        QVERIFY(!window.isVisible());
        QCOMPARE(window.closed, closeEvents);
    };
    if (isQDialog) {
        Watched<QDialog> window(nullptr, Qt::WindowFlags(type));
        const QSignalSpy rejected(&window, &QDialog::rejected);
        check(window);
        QCOMPARE(rejected.count(), 1);
    } else {
        Watched<QWidget> window(nullptr, Qt::WindowFlags(type));
        check(window);
    }
}

void tst_CaptionBar::closingAModalDialogRejectsIt()
{
    QDialog dialog;
    const CCaptionBar bar(&dialog);
    const ModalAnswer answer([&](QWidget*) { bar.closeButton->click(); });
    dialog.setResult(QDialog::Accepted);
    QCOMPARE(dialog.exec(), 0);
}

void tst_CaptionBar::nothingWithoutATopLevelWindow()
{
    Framed framed;
    framed.window.show();
    framed.window.overrideWindowFlags(Qt::SubWindow);
    QVERIFY(!framed.window.isWindow());
    framed.bar->clickClose();
    QVERIFY(framed.window.isVisible());
    framed.bar->clickMinimize();
    QVERIFY(!framed.window.isMinimized());
    framed.bar->clickMaximize();
    QVERIFY(!framed.window.isMaximized());
    const QPoint before = framed.window.pos();
    mouse(framed.bar, QEvent::MouseButtonPress, {300, 160});
    mouse(framed.bar, QEvent::MouseMove, {400, 260});
    QCOMPARE(framed.window.pos(), before);
    framed.window.overrideWindowFlags(Qt::Window);
}

void tst_CaptionBar::dragging()
{
    Framed framed;
    framed.window.show();
    QCOMPARE(framed.window.pos(), QPoint(200, 150));

    mouse(framed.bar, QEvent::MouseButtonPress, {310, 165});
    QCOMPARE(framed.bar->dragOffset, QPoint(110, 15));
    // One pixel is enough: the distance moved does not count.
    mouse(framed.bar, QEvent::MouseMove, {311, 165});
    QCOMPARE(framed.window.pos(), QPoint(201, 150));
    QCOMPARE(framed.bar->dragOffset, QPoint(110, 15));
    mouse(framed.bar, QEvent::MouseMove, {280, 190});
    QCOMPARE(framed.window.pos(), QPoint(170, 175));
    mouse(framed.bar, QEvent::MouseButtonRelease, {280, 190});
    QVERIFY(framed.bar->dragOffset.isNull());
    mouse(framed.bar, QEvent::MouseMove, {400, 400});
    QCOMPARE(framed.window.pos(), QPoint(170, 175));
}

void tst_CaptionBar::dragStopsAtTheOrigin_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<bool>("moves");
    // With a start-drag distance of 10.
    QTest::newRow("origin") << QPoint(0, 0) << false;
    QTest::newRow("distance 10") << QPoint(4, 6) << false;
    QTest::newRow("distance 10, left and up") << QPoint(-10, 0) << false;
    QTest::newRow("distance 11") << QPoint(5, 6) << true;
    QTest::newRow("distance 11, up") << QPoint(0, -11) << true;
    QTest::newRow("far on one axis") << QPoint(0, 300) << true;
}

void tst_CaptionBar::dragStopsAtTheOrigin()
{
    QFETCH(QPoint, target);
    QFETCH(bool, moves);

    const int usual = QApplication::startDragDistance();
    QApplication::setStartDragDistance(10);
    Framed framed;
    framed.window.show();
    mouse(framed.bar, QEvent::MouseButtonPress, {310, 165});
    mouse(framed.bar, QEvent::MouseMove, target + QPoint(110, 15));
    QCOMPARE(framed.window.pos(), moves ? target : QPoint(200, 150));
    // The drag goes on either way.
    mouse(framed.bar, QEvent::MouseMove, {410, 165});
    QCOMPARE(framed.window.pos(), QPoint(300, 150));
    QApplication::setStartDragDistance(usual);
}

void tst_CaptionBar::noDragWhileItFillsTheScreen_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
}

void tst_CaptionBar::noDragWhileItFillsTheScreen()
{
    QFETCH(int, state);
    Framed framed;
    framed.window.show();
    framed.window.setWindowState(Qt::WindowStates(state));
    const QPoint before = framed.window.pos();
    mouse(framed.bar, QEvent::MouseButtonPress, {310, 165});
    mouse(framed.bar, QEvent::MouseMove, {400, 300});
    QCOMPARE(framed.window.pos(), before);
}

void tst_CaptionBar::noDragWithoutOffset()
{
    Framed framed;
    framed.window.show();
    mouse(framed.bar, QEvent::MouseMove, {400, 300});
    QCOMPARE(framed.window.pos(), QPoint(200, 150));
    // A press on the window's very corner leaves a null offset, which means none.
    mouse(framed.bar, QEvent::MouseButtonPress, {200, 150});
    mouse(framed.bar, QEvent::MouseMove, {400, 300});
    QCOMPARE(framed.window.pos(), QPoint(200, 150));
}

void tst_CaptionBar::titleIsAHandleToo()
{
    Framed framed;
    framed.window.show();
    mouse(framed.bar->titleLabel, QEvent::MouseButtonPress, {310, 165});
    mouse(framed.bar->titleLabel, QEvent::MouseMove, {320, 170});
    QCOMPARE(framed.window.pos(), QPoint(210, 155));
}

void tst_CaptionBar::doubleClick_data()
{
    QTest::addColumn<int>("hints");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("maximizes");
    const int all = int(AllHints);
    const int fixed = int(AllHints & ~Qt::WindowMaximizeButtonHint);
    QTest::newRow("left") << all << int(Qt::LeftButton) << true;
    QTest::newRow("right") << all << int(Qt::RightButton) << false;
    QTest::newRow("middle") << all << int(Qt::MiddleButton) << false;
    QTest::newRow("no maximise button") << fixed << int(Qt::LeftButton) << false;
}

void tst_CaptionBar::doubleClick()
{
    QFETCH(int, hints);
    QFETCH(int, button);
    QFETCH(bool, maximizes);

    Framed framed{Qt::WindowFlags(hints)};
    framed.window.show();
    QTest::mouseDClick(framed.bar, Qt::MouseButton(button), {}, {100, 15});
    QCOMPARE(framed.window.isMaximized(), maximizes);
    QVERIFY(framed.bar->dragOffset.isNull());
    QTest::mouseDClick(framed.bar, Qt::MouseButton(button), {}, {100, 15});
    QVERIFY(!framed.window.isMaximized());
}

void tst_CaptionBar::painting_data()
{
    QTest::addColumn<int>("modality");
    QTest::addColumn<bool>("frame");
    QTest::addColumn<QStringList>("calls");
    const QString fill = QStringLiteral("fillRect 0,0,400,30 %1");
    const QStringList popup(fill.arg(QStringLiteral("PopupCaption")));
    const QStringList normal(fill.arg(QStringLiteral("FrameCaption")));
    QTest::newRow("modeless") << int(Qt::NonModal) << true << normal;
    QTest::newRow("window-modal") << int(Qt::WindowModal) << true << popup;
    QTest::newRow("modal") << int(Qt::ApplicationModal) << true << popup;
    QTest::newRow("modeless, no frame") << int(Qt::NonModal) << false << QStringList();
    QTest::newRow("modal, no frame") << int(Qt::ApplicationModal) << false << QStringList();
}

void tst_CaptionBar::painting()
{
    QFETCH(int, modality);
    QFETCH(bool, frame);
    QFETCH(QStringList, calls);
    Framed framed;
    framed.window.setWindowModality(Qt::WindowModality(modality));
    framed.bar->setFrameEnabled(frame);
    QCOMPARE(framed.bar->frameEnabled, frame);
    QCOMPARE(paintedAlone(*framed.bar), calls);
}

void tst_CaptionBar::frameChangeRepaints()
{
    Framed framed;
    framed.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&framed.window));
    QCoreApplication::processEvents();
    RecordingSkin::takeCalls();
    framed.bar->setFrameEnabled(false);
    QStringList calls;
    QTRY_VERIFY(!(calls += RecordingSkin::takeCalls()).isEmpty());
    QVERIFY(calls.filter(QStringLiteral("fillRect")).isEmpty());
    framed.bar->setFrameEnabled(true);
    QTRY_VERIFY(
        !(calls += RecordingSkin::takeCalls()).filter(QStringLiteral("FrameCaption")).isEmpty());
}

// The window system may put the window elsewhere than it was asked to.
void tst_CaptionBar::dragFollowsWhereTheWindowWent()
{
    class Stubborn : public QWidget {
    protected:
        void moveEvent(QMoveEvent*) override
        {
            if (pos().y() > 200)
                move(pos().x(), 200);
        }
    };
    Stubborn window;
    window.overrideWindowFlags(Qt::Window | Qt::FramelessWindowHint | AllHints);
    CCaptionBar bar(&window);
    window.setGeometry(200, 150, 400, 300);
    bar.setGeometry(0, 0, 400, 30);
    window.show();
    window.move(200, 150);
    mouse(&bar, QEvent::MouseButtonPress, QPoint(210, 160));
    QCOMPARE(bar.dragOffset, QPoint(10, 10));
    mouse(&bar, QEvent::MouseMove, QPoint(230, 260));
    QCOMPARE(window.pos(), QPoint(220, 200));
    QCOMPARE(bar.dragOffset, QPoint(10, 60));
    mouse(&bar, QEvent::MouseMove, QPoint(230, 250));
    QCOMPARE(window.pos(), QPoint(220, 190));
}

void tst_CaptionBar::dragStartsWhereTheWindowReallyIs_data()
{
    QTest::addColumn<bool>("frameless");
    QTest::addColumn<bool>("throughTitle");
    QTest::newRow("bar") << true << false;
    QTest::newRow("title") << true << true;
    QTest::newRow("framed") << false << false;
}

// The toolkit believes the window at (200, 150); the window manager has it at (900, 600).
void tst_CaptionBar::dragStartsWhereTheWindowReallyIs()
{
    QFETCH(bool, frameless);
    QFETCH(bool, throughTitle);
    Framed framed;
    if (!frameless) {
        framed.window.overrideWindowFlags(Qt::Window);
        framed.window.move(200, 150);
    }
    framed.bar->move(1, 1);
    framed.window.show();
    QCOMPARE(framed.window.pos(), QPoint(200, 150));
    const QPoint frame = framed.window.geometry().topLeft() - QPoint(200, 150);
    QCOMPARE(frame.isNull(), frameless);

    QWidget* const pressed
        = throughTitle ? framed.bar->titleLabel : static_cast<QWidget*>(framed.bar);
    const QPoint inWindow = pressed->mapTo(&framed.window, QPoint(7, 9));
    const QPoint global = QPoint(900, 600) + frame + inWindow;
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(7, 9), inWindow, global, Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    press.setTimestamp(123456);
    QCoreApplication::sendEvent(pressed, &press);
    QCOMPARE(framed.bar->dragOffset, frame + inWindow);
    mouse(framed.bar, QEvent::MouseMove, global + QPoint(60, 30));
    QCOMPARE(framed.window.pos(), QPoint(960, 630));
    mouse(framed.bar, QEvent::MouseMove, global + QPoint(70, 20));
    QCOMPARE(framed.window.pos(), QPoint(970, 620));

    // An event made by hand has no time, and need not know where it is.
    framed.window.move(200, 150);
    mouse(framed.bar, QEvent::MouseButtonRelease, global);
    QMouseEvent made(QEvent::MouseButtonPress, QPoint(7, 9), QPoint(320, 180), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(framed.bar, &made);
    QCOMPARE(framed.bar->dragOffset, QPoint(120, 30));
}

void tst_CaptionBar::titleMakesRoom()
{
    Framed framed;
    framed.window.setWindowTitle(QStringLiteral("title"));
    framed.window.show();
    const QSize with = framed.bar->layout()->totalSizeHint();
    const int x = framed.bar->closeButton->x();
    framed.bar->setTitleEnabled(false);
    QVERIFY(!framed.bar->titleLabel->isVisible());
    QVERIFY(framed.bar->layout()->totalSizeHint().width() < with.width());
    framed.bar->setTitleEnabled(true);
    QCOMPARE(framed.bar->layout()->totalSizeHint(), with);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(framed.bar->closeButton->x(), x);
}

void tst_CaptionBar::addedPartsAreLaidOut()
{
    Framed framed;
    framed.window.show();
    QCoreApplication::sendPostedEvents();
    const int before = framed.bar->closeButton->x();
    auto* const added = new QWidget;
    added->setFixedSize(20, 10);
    framed.bar->addCaptionWidget(added);
    added->show();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(framed.bar->closeButton->x(), before - 30);
    QCOMPARE(added->geometry(), QRect(before - 6, 10, 20, 10));
    framed.bar->addCaptionItem(new QSpacerItem(40, 10, QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCoreApplication::sendPostedEvents();
    QVERIFY(framed.bar->closeButton->x() <= before - 70);
}

void tst_CaptionBar::filterOnlyWithAMaximizeButton()
{
    class Watching : public CCaptionBar {
    public:
        using CCaptionBar::CCaptionBar;
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            ++filtered;
            return CCaptionBar::eventFilter(watched, event);
        }
        int filtered = 0;
    };
    for (const bool maximize : {true, false}) {
        QWidget window;
        window.overrideWindowFlags(
            Qt::Window | Qt::FramelessWindowHint
            | (maximize ? AllHints : AllHints & ~Qt::WindowMaximizeButtonHint));
        Watching bar(&window);
        QWindowStateChangeEvent change(Qt::WindowNoState);
        QCoreApplication::sendEvent(&window, &change);
        QCOMPARE(bar.filtered, maximize ? 1 : 0);
        // Whoever installs it there all the same does no harm.
        QVERIFY(!bar.eventFilter(&window, &change));
        QVERIFY(!bar.eventFilter(&bar, &change));
    }
}

TRADECONFIG_TEST_MAIN(tst_CaptionBar)
#include "tst_CaptionBar.moc"
