#include "support/MessageCapture.h"
#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/ImageButton.h"

#include <QAccessible>
#include <QPainter>

namespace {

QStringList painted(CImageButton& button)
{
    RecordingSkin::takeCalls();
    button.grab();
    return RecordingSkin::takeCalls();
}

// The horizontal middle of what the button's text paints on the untouched background.
double inkCentre(CImageButton& button)
{
    button.setShowText(false);
    const QImage without = button.grab().toImage();
    button.setShowText(true);
    const QImage with = button.grab().toImage();
    int left = with.width();
    int right = -1;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                left = qMin(left, x);
                right = qMax(right, x);
            }
        }
    }
    return right < 0 ? -1.0 : (left + right) / 2.0;
}

} // namespace

class tst_ImageButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void afterConstruction();
    void paintsNothingWithoutAnImage();
    void frameByState_data();
    void frameByState();
    void optionsAreForwarded_data();
    void optionsAreForwarded();
    void emptyImagesFallBack_data();
    void emptyImagesFallBack();
    void emptyNormalImageIsAnError();
    void statesFollowMouseAndSignals();
    void keyboardPressesToo();
    void everyChangeRepaints();
    void drawsTextOverTheImage();
    void textIndentMovesTheCentre();
    void textStandsInTheMiddle();
    void disablingEndsThePress();
    void isAPushButtonToScreenReaders();
};

void tst_ImageButton::init() { RecordingSkin::reset(); }

void tst_ImageButton::afterConstruction()
{
    QWidget parent;
    const CImageButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.hasMouseTracking());
    QVERIFY(!button.pressed);
    QVERIFY(!button.hovered);
    QVERIFY(!button.firstOption);
    QVERIFY(!button.secondOption);
    QCOMPARE(button.textIndent, 0);
    QVERIFY(!button.showText);
}

void tst_ImageButton::paintsNothingWithoutAnImage()
{
    CImageButton button(nullptr);
    QCOMPARE(painted(button), QStringList());
}

void tst_ImageButton::frameByState_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("drawn");

    // One digit for each state: the frame.
    struct Mode {
        int mode;
        const char* enabledNormalHoverPressBoth;
        const char* disabledNormalHoverPressBoth;
    };
    const Mode strips[] = {
        {1, "0000", "0000"},
        {2, "0011", "0011"},
        {3, "0122", "0122"},
        {4, "0122", "3333"},
    };
    const auto addRow = [](int mode, bool enabled, int state, const QString& drawn) {
        const bool hovered = state == 1 || state == 3;
        const bool pressed = state >= 2;
        QTest::addRow("mode %d%s%s%s", mode, enabled ? "" : " disabled", pressed ? " pressed" : "",
                      hovered ? " hovered" : "")
            << mode << enabled << pressed << hovered << drawn;
    };
    for (const Mode& strip : strips) {
        for (int state = 0; state < 4; ++state) {
            for (const bool enabled : {true, false}) {
                const char frame = enabled ? strip.enabledNormalHoverPressBoth[state]
                                           : strip.disabledNormalHoverPressBoth[state];
                addRow(strip.mode, enabled, state,
                       QStringLiteral("drawImage 0,0,40,20 Strip %1 %2 false false")
                           .arg(strip.mode)
                           .arg(QLatin1Char(frame)));
            }
        }
    }
    const char* const images[] = {"Normal", "Hover", "Pressed", "Pressed"};
    for (int state = 0; state < 4; ++state) {
        const QString drawn = QStringLiteral("drawImage 0,0,40,20 %1 1 0 false false");
        addRow(5, true, state, drawn.arg(QLatin1String(images[state])));
        addRow(5, false, state, drawn.arg(QStringLiteral("Disabled")));
    }
}

void tst_ImageButton::frameByState()
{
    QFETCH(int, mode);
    QFETCH(bool, enabled);
    QFETCH(bool, pressed);
    QFETCH(bool, hovered);
    QFETCH(QString, drawn);

    CImageButton button(nullptr);
    button.resize(40, 20);
    if (mode == 5) {
        button.setImage(QStringLiteral("Normal"), QStringLiteral("Hover"),
                        QStringLiteral("Pressed"), QStringLiteral("Disabled"));
    } else {
        button.setSingleImage(QStringLiteral("Strip"), mode, false, false);
    }
    QCOMPARE(button.imageMode, mode);
    button.setEnabled(enabled);
    button.pressed = pressed;
    button.hovered = hovered;
    QCOMPARE(painted(button), QStringList(drawn));
}

void tst_ImageButton::optionsAreForwarded_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::addColumn<QString>("tail");
    QTest::newRow("neither") << false << false << QStringLiteral("false false");
    QTest::newRow("first") << true << false << QStringLiteral("true false");
    QTest::newRow("second") << false << true << QStringLiteral("false true");
    QTest::newRow("both") << true << true << QStringLiteral("true true");
}

void tst_ImageButton::optionsAreForwarded()
{
    QFETCH(bool, first);
    QFETCH(bool, second);
    QFETCH(QString, tail);

    CImageButton button(nullptr);
    button.resize(14, 14);
    button.setSingleImage(QStringLiteral("Strip"), 3, first, second);
    QCOMPARE(button.firstOption, first);
    QCOMPARE(button.secondOption, second);
    QCOMPARE(painted(button), QStringList(QStringLiteral("drawImage 0,0,14,14 Strip 3 0 ") + tail));

    // Separate images keep the options of an earlier strip.
    button.setImage(QStringLiteral("N"), {}, {}, {});
    QCOMPARE(painted(button), QStringList(QStringLiteral("drawImage 0,0,14,14 N 1 0 ") + tail));
}

void tst_ImageButton::emptyImagesFallBack_data()
{
    QTest::addColumn<QString>("given"); // hover pressed disabled, "-" for empty
    QTest::addColumn<QString>("resolved"); // normal hover pressed disabled
    QTest::newRow("---") << QStringLiteral("- - -") << QStringLiteral("n n n n");
    QTest::newRow("h--") << QStringLiteral("h - -") << QStringLiteral("n h h n");
    QTest::newRow("-p-") << QStringLiteral("- p -") << QStringLiteral("n n p n");
    QTest::newRow("--d") << QStringLiteral("- - d") << QStringLiteral("n n n d");
    QTest::newRow("hp-") << QStringLiteral("h p -") << QStringLiteral("n h p n");
    QTest::newRow("h-d") << QStringLiteral("h - d") << QStringLiteral("n h h d");
    QTest::newRow("-pd") << QStringLiteral("- p d") << QStringLiteral("n n p d");
    QTest::newRow("hpd") << QStringLiteral("h p d") << QStringLiteral("n h p d");
}

void tst_ImageButton::emptyImagesFallBack()
{
    QFETCH(QString, given);
    QFETCH(QString, resolved);

    QStringList images = given.split(QLatin1Char(' '));
    for (QString& image : images) {
        if (image == QLatin1String("-"))
            image.clear();
    }
    CImageButton button(nullptr);
    button.setImage(QStringLiteral("n"), images[0], images[1], images[2]);
    const QStringList result
        = {button.normalImage, button.hoverImage, button.pressedImage, button.disabledImage};
    QCOMPARE(result.join(QLatin1Char(' ')), resolved);
    QCOMPARE(button.imageMode, 5);

    // A second call starts from its own arguments, not from what is there.
    button.setImage(QStringLiteral("m"), {}, {}, {});
    QCOMPARE(button.pressedImage, QStringLiteral("m"));
    QCOMPARE(button.disabledImage, QStringLiteral("m"));
}

void tst_ImageButton::emptyNormalImageIsAnError()
{
#ifdef QT_NO_DEBUG
    TEST_SKIP("assertions are off in this build");
#else
    const QString report = TestSupport::fatalMessage([] {
        CImageButton button(nullptr);
        button.setImage({}, QStringLiteral("h"), QStringLiteral("p"), QStringLiteral("d"));
    });
    QVERIFY2(report.contains(QStringLiteral("\"!normal.isEmpty()\"")), qPrintable(report));
    QVERIFY2(report.contains(QStringLiteral("ImageButton")), qPrintable(report));
#endif
}

void tst_ImageButton::statesFollowMouseAndSignals()
{
    CImageButton button(nullptr);
    button.resize(14, 14);
    button.setSingleImage(QStringLiteral("Strip"), 4, true, false);
    const auto drawnFrame
        = [&button] { return painted(button).value(0).section(QLatin1Char(' '), 4, 4).toInt(); };
    QCOMPARE(drawnFrame(), 0);

    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&button, &enter);
    QVERIFY(button.hovered);
    QCOMPARE(drawnFrame(), 1);

    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.pressed);
    QCOMPARE(drawnFrame(), 2);

    button.setEnabled(false);
    QCOMPARE(drawnFrame(), 3);
    button.setEnabled(true);

    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(!button.pressed);
    QCOMPARE(drawnFrame(), 1);

    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    QVERIFY(!button.hovered);
    QCOMPARE(drawnFrame(), 0);
}

void tst_ImageButton::keyboardPressesToo()
{
    CImageButton button(nullptr);
    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    QTest::keyPress(&button, Qt::Key_Space);
    QVERIFY(button.pressed);
    QTest::keyRelease(&button, Qt::Key_Space);
    QVERIFY(!button.pressed);
    QCOMPARE(clicks.count(), 1);
}

void tst_ImageButton::everyChangeRepaints()
{
    CImageButton button(nullptr);
    button.resize(20, 20);
    button.setText(QStringLiteral("x"));
    button.setSingleImage(QStringLiteral("Strip"), 3, false, false);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));

    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"strip", [&] { button.setSingleImage(QStringLiteral("Other"), 2, true, true); }},
        {"images", [&] { button.setImage(QStringLiteral("N"), {}, {}, {}); }},
        {"enter", [&] { QCoreApplication::sendEvent(&button, &enter); }},
        {"leave", [&] { QCoreApplication::sendEvent(&button, &leave); }},
        {"onPressed", [&] { button.onPressed(); }},
        {"onReleased", [&] { button.onReleased(); }},
        {"disable", [&] { button.setEnabled(false); }},
        {"enable", [&] { button.setEnabled(true); }},
        {"show text", [&] { button.setShowText(true); }},
        {"indent", [&] { button.setTextIndent(3); }},
    };
    for (const auto& change : changes) {
        QCoreApplication::processEvents();
        RecordingSkin::takeCalls();
        change.second();
        QStringList calls;
        QTRY_VERIFY2(!(calls += RecordingSkin::takeCalls()).isEmpty(), change.first);
    }
}

void tst_ImageButton::drawsTextOverTheImage()
{
    CImageButton button(nullptr);
    button.resize(80, 24);
    button.setSingleImage(QStringLiteral("Strip"), 1, false, false);
    button.setText(QStringLiteral("确定"));
    const QImage image = button.grab().toImage();
    button.setShowText(true);
    QVERIFY(button.grab().toImage() != image);
    button.setText(QString());
    QCOMPARE(button.grab().toImage(), image);

    // In the painter's own pen: that of the palette.
    button.setText(QStringLiteral("██"));
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, QColor(200, 30, 60));
    button.setPalette(palette);
    const QImage coloured = button.grab().toImage();
    int hits = 0;
    for (int x = 0; x < coloured.width(); ++x)
        hits += coloured.pixelColor(x, 12) == QColor(200, 30, 60);
    QVERIFY(hits > 0);
}

void tst_ImageButton::textIndentMovesTheCentre()
{
    CImageButton button(nullptr);
    button.resize(120, 24);
    button.setSingleImage(QStringLiteral("Strip"), 1, false, false);
    button.setText(QStringLiteral("HH"));
    const double centred = inkCentre(button);
    QVERIFY(qAbs(centred - 60.0) < 2.0);
    button.setTextIndent(40);
    QCOMPARE(button.textIndent, 40);
    // The left edge moves by 40, so the middle of the rectangle moves by 20.
    QCOMPARE(inkCentre(button), centred + 20.0);
    // The image still covers the whole button.
    QCOMPARE(painted(button),
             QStringList(QStringLiteral("drawImage 0,0,120,24 Strip 1 0 false false")));
}

void tst_ImageButton::textStandsInTheMiddle()
{
    // Even and odd, so that no edge can be a pixel off unseen.
    for (const QSize size : {QSize(80, 24), QSize(81, 24), QSize(80, 25), QSize(81, 25)}) {
        for (const int indent : {0, 9}) {
            CImageButton button(nullptr);
            button.resize(size);
            QPixmap expected = button.grab();
            QPainter painter(&expected);
            painter.setPen(button.palette().color(QPalette::ButtonText));
            painter.setFont(button.font());
            painter.drawText(QRect(indent, 0, size.width() - indent, size.height()),
                             Qt::AlignCenter, QStringLiteral("Hg"));
            painter.end();

            button.setText(QStringLiteral("Hg"));
            button.setTextIndent(indent);
            button.setShowText(true);
            QCOMPARE(button.grab().toImage(), expected.toImage());
        }
    }
}

void tst_ImageButton::disablingEndsThePress()
{
    CImageButton button(nullptr);
    button.resize(20, 20);
    button.setSingleImage(QStringLiteral("Strip"), 4, false, false);
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.pressed);
    button.setEnabled(false);
    QVERIFY(!button.pressed);
    QVERIFY(!button.isDown());
    button.setEnabled(true);
    QCOMPARE(painted(button),
             QStringList(QStringLiteral("drawImage 0,0,20,20 Strip 4 0 false false")));
}

void tst_ImageButton::isAPushButtonToScreenReaders()
{
    CImageButton button(nullptr);
    button.setAccessibleName(QStringLiteral("关闭"));
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::PushButton);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("关闭"));
}

TRADECONFIG_TEST_MAIN(tst_ImageButton)
#include "tst_ImageButton.moc"
