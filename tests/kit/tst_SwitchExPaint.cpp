#include "support/RecordingSkin.h"
#include "support/ShownBar.h"
#include "support/TestMain.h"
#include "tradeConfig/SwitchEx.h"

#include <QMenu>
#include <QPixmap>

Q_DECLARE_METATYPE(CSwitchEx::SwitchMode)
Q_DECLARE_METATYPE(Qt::Orientation)

class tst_SwitchExPaint : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneItem_data();
    void oneItem();
    void background_data();
    void background();
    void scrollButtons_data();
    void scrollButtons();
    void theHalvesMeetAtAWholePixel_data();
    void theHalvesMeetAtAWholePixel();
    void withoutAnAreaThereAreNoScrollButtons();
    void separators();
    void separatorsOfAColumn();
    void aSeparatorOutsideIsFilledAllTheSame();
    void imageItem_data();
    void imageItem();
    void itemsOutsideTheWidget();
    void thePaddingDecidesWhatIsOutside();
    void anUnknownModePaintsNoItems();
    void theWholeBar();
    void afterClearingOnlyTheBackgroundIsLeft();
    void equalDivisionPaintsWhatTheLastLayoutCounted();
};

namespace {

constexpr CSwitchEx::SwitchMode allModes[] = {
    CSwitchEx::ModeSwitch,    CSwitchEx::ModeButton,   CSwitchEx::ModeFlatButton,
    CSwitchEx::ModeFlatBlue,  CSwitchEx::ModeIKButton, CSwitchEx::ModeImageButton,
    CSwitchEx::ModeNavButton,
};

// One expected call a line; the first line is empty.
QStringList lines(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class Bar : public ShownBar {
public:
    using ShownBar::ShownBar;

    QStringList painted()
    {
        RecordingSkin::takeCalls();
        RecordingSkin::takeMeasurements();
        grab();
        return RecordingSkin::takeCalls();
    }
};

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

// What every bar of 200 x 40, or 40 x 200 as a column, paints before its items.
QStringList backgroundOf(CSwitchEx::SwitchMode mode, Qt::Orientation orientation)
{
    const bool horizontal = orientation == Qt::Horizontal;
    switch (mode) {
    case CSwitchEx::ModeImageButton:
        return {};
    case CSwitchEx::ModeNavButton:
        return lines(horizontal ? "fillRect 0,0,199,39 NavSwitchBg\n"
                                  "drawRect 0,0,199,39 NavSwitchBorder 1 1"
                                : "fillRect 0,0,39,199 NavSwitchBg\n"
                                  "drawRect 0,0,39,199 NavSwitchBorder 1 1");
    default:
        return lines(horizontal ? "fillRect 0,0,199,39 SwitchBackground\n"
                                  "drawRect 0,0,199,39 SwitchBorder 1 1"
                                : "fillRect 0,0,39,199 SwitchBackground\n"
                                  "drawRect 0,0,39,199 SwitchBorder 1 1");
    }
}

// The calls without the two of the bar's background.
QStringList withoutBackground(QStringList calls) { return calls.mid(2); }

} // namespace

// One item "ab" (20 x 16 pixels) in a bar of 200 x 40 or 40 x 200, padding 2, 3, 4, 5.
void tst_SwitchExPaint::init() { RecordingSkin::reset(); }

void tst_SwitchExPaint::oneItem_data()
{
    QTest::addColumn<CSwitchEx::SwitchMode>("mode");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* name, CSwitchEx::SwitchMode mode, Qt::Orientation orientation,
                        const char* state, const char* expected) {
        QTest::newRow(name) << mode << orientation << QString::fromLatin1(state)
                            << backgroundOf(mode, orientation) + lines(expected);
    };

    // clang-format off
    row("Switch, horizontal, normal", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgNormal
drawText 3,4,193,30 0x184 SwitchFgNormal Switch "ab")");
    row("Switch, horizontal, hover", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgHover
drawText 3,4,193,30 0x184 SwitchFgHover Switch "ab")");
    row("Switch, horizontal, selected", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgSelect
drawText 3,4,193,30 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, horizontal, menu", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgNormal
drawText 3,4,193,30 0x184 SwitchFgNormal Switch "ab")");
    row("Switch, horizontal, selected and hover", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgSelect
drawText 3,4,193,30 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, horizontal, selected with menu", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgSelect
drawText 3,4,193,30 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, horizontal, hover with menu", CSwitchEx::ModeSwitch, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgHover
drawText 3,4,193,30 0x184 SwitchFgHover Switch "ab")");
    row("Switch, vertical, normal", CSwitchEx::ModeSwitch, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgNormal
drawText 3,4,33,190 0x184 SwitchFgNormal Switch "ab")");
    row("Switch, vertical, hover", CSwitchEx::ModeSwitch, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgHover
drawText 3,4,33,190 0x184 SwitchFgHover Switch "ab")");
    row("Switch, vertical, selected", CSwitchEx::ModeSwitch, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgSelect
drawText 3,4,33,190 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, vertical, menu", CSwitchEx::ModeSwitch, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgNormal
drawText 3,4,33,190 0x184 SwitchFgNormal Switch "ab")");
    row("Switch, vertical, selected and hover", CSwitchEx::ModeSwitch, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgSelect
drawText 3,4,33,190 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, vertical, selected with menu", CSwitchEx::ModeSwitch, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgSelect
drawText 3,4,33,190 0x184 SwitchFgSelect Switch "ab")");
    row("Switch, vertical, hover with menu", CSwitchEx::ModeSwitch, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,192 SwitchBorder 1 1
fillRect 3,4,33,190 SwitchBgHover
drawText 3,4,33,190 0x184 SwitchFgHover Switch "ab")");
    row("Button, horizontal, normal", CSwitchEx::ModeButton, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
drawText 2,3,50,32 0x184 SwitchFgNormal Switch "ab")");
    row("Button, horizontal, hover", CSwitchEx::ModeButton, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
drawText 2,3,50,32 0x184 SwitchFgHover Switch "ab")");
    row("Button, horizontal, selected", CSwitchEx::ModeButton, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
drawText 2,3,50,32 0x184 SwitchFgSelect Switch "ab")");
    row("Button, horizontal, menu", CSwitchEx::ModeButton, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("Button, horizontal, selected and hover", CSwitchEx::ModeButton, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
drawText 2,3,50,32 0x184 SwitchFgSelect Switch "ab")");
    row("Button, horizontal, selected with menu", CSwitchEx::ModeButton, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("Button, horizontal, hover with menu", CSwitchEx::ModeButton, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("Button, vertical, normal", CSwitchEx::ModeButton, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgNormal Switch "ab")");
    row("Button, vertical, hover", CSwitchEx::ModeButton, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgHover Switch "ab")");
    row("Button, vertical, selected", CSwitchEx::ModeButton, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgSelect Switch "ab")");
    row("Button, vertical, menu", CSwitchEx::ModeButton, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgNormal Switch "ab▶")");
    row("Button, vertical, selected and hover", CSwitchEx::ModeButton, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgSelect Switch "ab")");
    row("Button, vertical, selected with menu", CSwitchEx::ModeButton, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgNormal Switch "ab▶")");
    row("Button, vertical, hover with menu", CSwitchEx::ModeButton, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 2,3,34,26 0x184 SwitchFgNormal Switch "ab▶")");
    row("FlatButton, horizontal, normal", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,49,30 SwitchBgNormal
drawText 2,3,50,32 0x184 SwitchFgNormal Switch "ab")");
    row("FlatButton, horizontal, hover", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,49,30 SwitchBgHover
drawText 2,3,50,32 0x184 SwitchFgHover Switch "ab")");
    row("FlatButton, horizontal, selected", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,49,30 SwitchBgSelect
drawText 2,3,50,32 0x184 SwitchFgSelect Switch "ab")");
    row("FlatButton, horizontal, menu", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatButton, horizontal, selected and hover", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,49,30 SwitchBgSelect
drawText 2,3,50,32 0x184 SwitchFgSelect Switch "ab")");
    row("FlatButton, horizontal, selected with menu", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatButton, horizontal, hover with menu", CSwitchEx::ModeFlatButton, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 2,3,60,32 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatButton, vertical, normal", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,33,25 SwitchBgNormal
drawText 14,3,10,26 0x2084 SwitchFgNormal Switch "ab")");
    row("FlatButton, vertical, hover", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,33,25 SwitchBgHover
drawText 14,3,10,26 0x2084 SwitchFgHover Switch "ab")");
    row("FlatButton, vertical, selected", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
fillRect 3,4,33,25 SwitchBgSelect
drawText 14,3,10,26 0x2084 SwitchFgSelect Switch "ab")");
    row("FlatButton, vertical, menu", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 14,3,10,26 0x2084 SwitchFgNormal Switch "ab▶")");
    row("FlatButton, vertical, selected and hover", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
fillRect 3,4,33,25 SwitchBgSelect
drawText 14,3,10,26 0x2084 SwitchFgSelect Switch "ab")");
    row("FlatButton, vertical, selected with menu", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
drawText 14,3,10,26 0x2084 SwitchFgNormal Switch "ab▶")");
    row("FlatButton, vertical, hover with menu", CSwitchEx::ModeFlatButton, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 14,3,10,26 0x2084 SwitchFgNormal Switch "ab▶")");
    row("FlatBlue, horizontal, normal", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgNormal
drawText 3,4,48,30 0x184 SwitchFgNormal Switch "ab")");
    row("FlatBlue, horizontal, hover", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgHover
drawText 3,4,48,30 0x184 SwitchFgHover Switch "ab")");
    row("FlatBlue, horizontal, selected", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgSelect
drawText 3,4,48,30 0x184 SwitchFgSelect Switch "ab")");
    row("FlatBlue, horizontal, menu", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatBlue, horizontal, selected and hover", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgSelect
drawText 3,4,48,30 0x184 SwitchFgSelect Switch "ab")");
    row("FlatBlue, horizontal, selected with menu", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatBlue, horizontal, hover with menu", CSwitchEx::ModeFlatBlue, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("FlatBlue, vertical, normal", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgNormal
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab")");
    row("FlatBlue, vertical, hover", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgHover
drawText 3,4,32,24 0x184 SwitchFgHover Switch "ab")");
    row("FlatBlue, vertical, selected", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgSelect
drawText 3,4,32,24 0x184 SwitchFgSelect Switch "ab")");
    row("FlatBlue, vertical, menu", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("FlatBlue, vertical, selected and hover", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgSelect
drawText 3,4,32,24 0x184 SwitchFgSelect Switch "ab")");
    row("FlatBlue, vertical, selected with menu", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("FlatBlue, vertical, hover with menu", CSwitchEx::ModeFlatBlue, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("IKButton, horizontal, normal", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgNormal
drawText 3,4,48,30 0x184 SwitchFgNormal Switch "ab")");
    row("IKButton, horizontal, hover", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgHover
drawText 3,4,48,30 0x184 SwitchFgHover Switch "ab")");
    row("IKButton, horizontal, selected", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgSelect
drawText 3,4,48,30 0x184 SwitchFgSelect Switch "ab")");
    row("IKButton, horizontal, menu", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("IKButton, horizontal, selected and hover", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,50,32 SwitchBorder 1 1
fillRect 3,4,48,30 SwitchBgSelect
drawText 3,4,48,30 0x184 SwitchFgSelect Switch "ab")");
    row("IKButton, horizontal, selected with menu", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("IKButton, horizontal, hover with menu", CSwitchEx::ModeIKButton, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,60,32 SwitchBorder 1 1
drawText 3,4,58,30 0x184 SwitchFgNormal Switch "ab▲")");
    row("IKButton, vertical, normal", CSwitchEx::ModeIKButton, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgNormal
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab")");
    row("IKButton, vertical, hover", CSwitchEx::ModeIKButton, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgHover
drawText 3,4,32,24 0x184 SwitchFgHover Switch "ab")");
    row("IKButton, vertical, selected", CSwitchEx::ModeIKButton, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgSelect
drawText 3,4,32,24 0x184 SwitchFgSelect Switch "ab")");
    row("IKButton, vertical, menu", CSwitchEx::ModeIKButton, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("IKButton, vertical, selected and hover", CSwitchEx::ModeIKButton, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
fillRect 3,4,32,24 SwitchBgSelect
drawText 3,4,32,24 0x184 SwitchFgSelect Switch "ab")");
    row("IKButton, vertical, selected with menu", CSwitchEx::ModeIKButton, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("IKButton, vertical, hover with menu", CSwitchEx::ModeIKButton, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,26 SwitchBorder 1 1
drawText 3,4,32,24 0x184 SwitchFgNormal Switch "ab▶")");
    row("ImageButton, horizontal, normal", CSwitchEx::ModeImageButton, Qt::Horizontal, "normal", R"()");
    row("ImageButton, horizontal, hover", CSwitchEx::ModeImageButton, Qt::Horizontal, "hover", R"()");
    row("ImageButton, horizontal, selected", CSwitchEx::ModeImageButton, Qt::Horizontal, "selected", R"()");
    row("ImageButton, horizontal, menu", CSwitchEx::ModeImageButton, Qt::Horizontal, "menu", R"()");
    row("ImageButton, horizontal, selected and hover", CSwitchEx::ModeImageButton, Qt::Horizontal, "selected and hover", R"()");
    row("ImageButton, horizontal, selected with menu", CSwitchEx::ModeImageButton, Qt::Horizontal, "selected with menu", R"()");
    row("ImageButton, horizontal, hover with menu", CSwitchEx::ModeImageButton, Qt::Horizontal, "hover with menu", R"()");
    row("ImageButton, vertical, normal", CSwitchEx::ModeImageButton, Qt::Vertical, "normal", R"()");
    row("ImageButton, vertical, hover", CSwitchEx::ModeImageButton, Qt::Vertical, "hover", R"()");
    row("ImageButton, vertical, selected", CSwitchEx::ModeImageButton, Qt::Vertical, "selected", R"()");
    row("ImageButton, vertical, menu", CSwitchEx::ModeImageButton, Qt::Vertical, "menu", R"()");
    row("ImageButton, vertical, selected and hover", CSwitchEx::ModeImageButton, Qt::Vertical, "selected and hover", R"()");
    row("ImageButton, vertical, selected with menu", CSwitchEx::ModeImageButton, Qt::Vertical, "selected with menu", R"()");
    row("ImageButton, vertical, hover with menu", CSwitchEx::ModeImageButton, Qt::Vertical, "hover with menu", R"()");
    row("NavButton, horizontal, normal", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "normal", R"(
drawRect 2,3,50,32 NavSwitchBorder 1 1
fillRect 3,4,49,30 NavSwitchBgNormal
drawText 2,3,50,32 0x184 NavSwitchFgNormal NavSwitch "ab")");
    row("NavButton, horizontal, hover", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "hover", R"(
drawRect 2,3,50,32 NavSwitchBorder 1 1
fillRect 3,4,49,30 NavSwitchBgHover
drawText 2,3,50,32 0x184 NavSwitchFgHover NavSwitch "ab")");
    row("NavButton, horizontal, selected", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "selected", R"(
drawRect 2,3,50,32 NavSwitchBorder 1 1
fillRect 3,4,49,30 NavSwitchBgSelect
drawText 2,3,50,32 0x184 NavSwitchFgSelect NavSwitchSel "ab")");
    row("NavButton, horizontal, menu", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "menu", R"(
drawRect 2,3,60,32 NavSwitchBorder 1 1
drawText 2,3,60,32 0x184 NavSwitchFgNormal NavSwitch "ab▲")");
    row("NavButton, horizontal, selected and hover", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "selected and hover", R"(
drawRect 2,3,50,32 NavSwitchBorder 1 1
fillRect 3,4,49,30 NavSwitchBgSelect
drawText 2,3,50,32 0x184 NavSwitchFgSelect NavSwitchSel "ab")");
    row("NavButton, horizontal, selected with menu", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "selected with menu", R"(
drawRect 2,3,60,32 NavSwitchBorder 1 1
drawText 2,3,60,32 0x184 NavSwitchFgNormal NavSwitch "ab▲")");
    row("NavButton, horizontal, hover with menu", CSwitchEx::ModeNavButton, Qt::Horizontal,
        "hover with menu", R"(
drawRect 2,3,60,32 NavSwitchBorder 1 1
drawText 2,3,60,32 0x184 NavSwitchFgNormal NavSwitch "ab▲")");
    row("NavButton, vertical, normal", CSwitchEx::ModeNavButton, Qt::Vertical,
        "normal", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
fillRect 3,4,33,25 NavSwitchBgNormal
drawText 14,3,10,26 0x2084 NavSwitchFgNormal NavSwitch "ab")");
    row("NavButton, vertical, hover", CSwitchEx::ModeNavButton, Qt::Vertical,
        "hover", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
fillRect 3,4,33,25 NavSwitchBgHover
drawText 14,3,10,26 0x2084 NavSwitchFgHover NavSwitch "ab")");
    row("NavButton, vertical, selected", CSwitchEx::ModeNavButton, Qt::Vertical,
        "selected", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
fillRect 3,4,33,25 NavSwitchBgSelect
drawText 14,3,10,26 0x2084 NavSwitchFgSelect NavSwitchSel "ab")");
    row("NavButton, vertical, menu", CSwitchEx::ModeNavButton, Qt::Vertical,
        "menu", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
drawText 14,3,10,26 0x2084 NavSwitchFgNormal NavSwitch "ab▶")");
    row("NavButton, vertical, selected and hover", CSwitchEx::ModeNavButton, Qt::Vertical,
        "selected and hover", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
fillRect 3,4,33,25 NavSwitchBgSelect
drawText 14,3,10,26 0x2084 NavSwitchFgSelect NavSwitchSel "ab")");
    row("NavButton, vertical, selected with menu", CSwitchEx::ModeNavButton, Qt::Vertical,
        "selected with menu", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,29 1 1
drawText 14,3,10,26 0x2084 NavSwitchFgNormal NavSwitch "ab▶")");
    row("NavButton, vertical, hover with menu", CSwitchEx::ModeNavButton, Qt::Vertical,
        "hover with menu", R"(
drawRect 2,3,34,26 NavSwitchBorder 1 1
drawText 14,3,10,26 0x2084 NavSwitchFgNormal NavSwitch "ab▶")");
    // clang-format on
}

void tst_SwitchExPaint::oneItem()
{
    QFETCH(CSwitchEx::SwitchMode, mode);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QString, state);
    QFETCH(QStringList, expected);
    const bool horizontal = orientation == Qt::Horizontal;
    Bar bar(orientation, horizontal ? QSize(200, 40) : QSize(40, 200), QMargins(2, 3, 4, 5));
    QMenu menu;
    SwitchItem* const item = bar.AddNormalSwitch(text("ab"), {}, false,
                                                 state.contains(text("menu")) ? &menu : nullptr);
    bar.changeMode(mode);
    if (state.contains(text("selected")))
        bar.SetCurSel(item, false);
    if (state.contains(text("hover")))
        bar.hoverItem = item;
    QCOMPARE(bar.painted(), expected);

    const bool column
        = !horizontal && (mode == CSwitchEx::ModeFlatButton || mode == CSwitchEx::ModeNavButton);
    QCOMPARE(RecordingSkin::takeMeasurements(),
             column ? QStringList{text("textSize CSwitchEx Switch \"一\"")} : QStringList());
    // Painting again gives the same: it keeps no state.
    QCOMPARE(bar.painted(), expected);
}

void tst_SwitchExPaint::background_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("expected");

    const QStringList own = lines("fillRect 0,0,199,39 SwitchBackground\n"
                                  "drawRect 0,0,199,39 SwitchBorder 1 1");
    const QStringList frame = lines("fillRect 0,0,199,39 FrameClient\n"
                                    "drawRect 0,0,199,39 SwitchBorder 1 1");
    for (const int mode : {1, 2, 3, 4, 5, 0, 8}) {
        QTest::addRow("%d, on", mode) << mode << true << own;
        QTest::addRow("%d, off", mode) << mode << false << frame;
    }
    QTest::newRow("image, on") << 6 << true << QStringList();
    QTest::newRow("image, off") << 6 << false << QStringList();
    QTest::newRow("navigation, on") << 7 << true
                                    << lines("fillRect 0,0,199,39 NavSwitchBg\n"
                                             "drawRect 0,0,199,39 NavSwitchBorder 1 1");
    QTest::newRow("navigation, off") << 7 << false
                                     << lines("fillRect 0,0,199,39 FrameClient\n"
                                              "drawRect 0,0,199,39 NavSwitchBorder 1 1");
}

void tst_SwitchExPaint::background()
{
    QFETCH(int, mode);
    QFETCH(bool, enabled);
    QFETCH(QStringList, expected);
    Bar bar(Qt::Horizontal, QSize(200, 40), QMargins(2, 3, 4, 5));
    bar.changeMode(CSwitchEx::SwitchMode(mode));
    bar.setBackgroundColorEnable(enabled);
    QCOMPARE(bar.painted(), expected);
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
}

// Four items of 80 pixels in 200: two are shown beside the scroll buttons at 162.
void tst_SwitchExPaint::scrollButtons_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("first");
    QTest::addColumn<QStringList>("expected");

    const QStringList outlines = lines("drawRect 162,0,19,40 SwitchBorder 1 1\n"
                                       "drawRect 181,0,19,40 SwitchBorder 1 1");
    const QStringList columnOutlines = lines("drawRect 0,162,40,19 SwitchBorder 1 1\n"
                                             "drawRect 0,181,40,19 SwitchBorder 1 1");
    const QStringList atStart = lines("drawText 162,0,19,40 0x184 SwitchFgDisable Switch \"◀\"\n"
                                      "drawText 181,0,19,40 0x184 SwitchFgNormal Switch \"▶\"");
    const QStringList atEnd = lines("drawText 162,0,19,40 0x184 SwitchFgNormal Switch \"◀\"\n"
                                    "drawText 181,0,19,40 0x184 SwitchFgDisable Switch \"▶\"");
    const QStringList inMiddle = lines("drawText 162,0,19,40 0x184 SwitchFgNormal Switch \"◀\"\n"
                                       "drawText 181,0,19,40 0x184 SwitchFgNormal Switch \"▶\"");
    const QStringList columnAtStart
        = lines("drawText 0,162,40,19 0xc4 SwitchFgDisable Switch \"▲\"\n"
                "drawText 0,181,40,19 0x184 SwitchFgDisable Switch \"▼\"");
    const QStringList columnAtEnd = lines("drawText 0,162,40,19 0xc4 SwitchFgNormal Switch \"▲\"\n"
                                          "drawText 0,181,40,19 0x184 SwitchFgNormal Switch \"▼\"");
    const QStringList columnInMiddle
        = lines("drawText 0,162,40,19 0xc4 SwitchFgNormal Switch \"▲\"\n"
                "drawText 0,181,40,19 0x184 SwitchFgDisable Switch \"▼\"");
    for (const int mode : {2, 3, 4, 5, 7}) {
        QTest::addRow("%d, start", mode) << Qt::Horizontal << mode << 0 << outlines + atStart;
        QTest::addRow("%d, middle", mode) << Qt::Horizontal << mode << 1 << outlines + inMiddle;
        QTest::addRow("%d, end", mode) << Qt::Horizontal << mode << 2 << outlines + atEnd;
        QTest::addRow("%d, column, start", mode)
            << Qt::Vertical << mode << 0 << columnOutlines + columnAtStart;
        QTest::addRow("%d, column, middle", mode)
            << Qt::Vertical << mode << 1 << columnOutlines + columnInMiddle;
        QTest::addRow("%d, column, end", mode)
            << Qt::Vertical << mode << 2 << columnOutlines + columnAtEnd;
    }
    QTest::newRow("image, start") << Qt::Horizontal << 6 << 0 << atStart;
    QTest::newRow("image, middle") << Qt::Horizontal << 6 << 1 << inMiddle;
    QTest::newRow("image, end") << Qt::Horizontal << 6 << 2 << atEnd;
    QTest::newRow("image, column, start") << Qt::Vertical << 6 << 0 << columnAtStart;
    QTest::newRow("image, column, middle") << Qt::Vertical << 6 << 1 << columnInMiddle;
    QTest::newRow("image, column, end") << Qt::Vertical << 6 << 2 << columnAtEnd;
    QTest::newRow("equal division") << Qt::Horizontal << 1 << 0 << QStringList();
    QTest::newRow("equal division, column") << Qt::Vertical << 1 << 0 << QStringList();
}

void tst_SwitchExPaint::scrollButtons()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, mode);
    QFETCH(int, first);
    QFETCH(QStringList, expected);
    const bool horizontal = orientation == Qt::Horizontal;
    Bar bar(orientation, horizontal ? QSize(200, 40) : QSize(40, 200));
    bar.setItemSize(80);
    for (const char* label : {"a", "b", "c", "d"})
        bar.AddNormalSwitch(text(label));
    for (int i = 0; i < first; ++i)
        bar.DoClickMoreItem(false);
    bar.changeMode(CSwitchEx::SwitchMode(mode));
    QCOMPARE(bar.firstIndex, first);
    const int backgroundCalls = mode == 6 ? 0 : 2;
    // What follows the scroll buttons are the two items shown.
    QCOMPARE(bar.painted().mid(backgroundCalls, expected.size()), expected);
    if (mode == 6)
        QCOMPARE(bar.painted(), expected);
}

void tst_SwitchExPaint::theHalvesMeetAtAWholePixel_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QStringList>("expected");

    // The end item takes 30.5, the buttons begin 68.5 before the far edge.
    QTest::newRow("wide") << 200 << Qt::Horizontal
                          << lines("drawRect 131.5,0,18.5,40 SwitchBorder 1 1\n"
                                   "drawRect 150,0,19.5,40 SwitchBorder 1 1");
    QTest::newRow("left of zero") << 10 << Qt::Horizontal
                                  << lines("drawRect -58.5,0,19.5,40 SwitchBorder 1 1\n"
                                           "drawRect -39,0,18.5,40 SwitchBorder 1 1");
    QTest::newRow("high") << 200 << Qt::Vertical
                          << lines("drawRect 0,131.5,40,18.5 SwitchBorder 1 1\n"
                                   "drawRect 0,150,40,19.5 SwitchBorder 1 1");
    QTest::newRow("above zero") << 10 << Qt::Vertical
                                << lines("drawRect 0,-58.5,40,19.5 SwitchBorder 1 1\n"
                                         "drawRect 0,-39,40,18.5 SwitchBorder 1 1");
}

void tst_SwitchExPaint::theHalvesMeetAtAWholePixel()
{
    QFETCH(int, length);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QStringList, expected);
    const bool horizontal = orientation == Qt::Horizontal;
    RecordingSkin::setTextSize([](const QString&, const QString& label) {
        return label == QStringLiteral("end") ? QSizeF(0.5, 20.5) : QSizeF(400, 400);
    });
    Bar bar(orientation, horizontal ? QSize(length, 40) : QSize(40, length));
    bar.AddNormalSwitch(text("end"), {}, true);
    bar.AddNormalSwitch(text("main"));
    QCOMPARE(bar.painted().mid(2, 2), expected);
}

void tst_SwitchExPaint::withoutAnAreaThereAreNoScrollButtons()
{
    Bar bar(Qt::Horizontal, QSize(200, 40));
    bar.moreShown = true;
    bar.moreRect = QRectF(10, 0, 0, 40);
    QCOMPARE(withoutBackground(bar.painted()), QStringList());
    bar.moreRect = QRectF(10, 0, 38, 40);
    QCOMPARE(withoutBackground(bar.painted()).size(), 4);
    bar.moreShown = false;
    QCOMPARE(withoutBackground(bar.painted()), QStringList());
}

void tst_SwitchExPaint::separators()
{
    // 60 wide with 2 left and 4 right of padding; at x 0, then at x 20 behind an end of 20.
    for (const CSwitchEx::SwitchMode mode : allModes) {
        Bar bar(Qt::Horizontal, QSize(200, 40), QMargins(2, 3, 4, 5));
        SwitchItem* const separator = bar.AddSeparator(60);
        SwitchItem* const atEnd = bar.AddSeparator(20, true);
        bar.changeMode(mode);
        bar.SetCurSel(separator, false);
        bar.hoverItem = atEnd;
        const QStringList expected = mode == CSwitchEx::ModeSwitch
            ? lines("fillRect 102,3,94,32 SwitchBorder\nfillRect 2,3,94,32 SwitchBorder")
            : lines("fillRect 182,3,14,32 SwitchBorder\nfillRect 2,3,54,32 SwitchBorder");
        const QStringList calls = bar.painted();
        QCOMPARE(mode == CSwitchEx::ModeImageButton ? calls : withoutBackground(calls), expected);
    }
}

void tst_SwitchExPaint::separatorsOfAColumn()
{
    Bar bar(Qt::Vertical, QSize(40, 200), QMargins(2, 3, 4, 5));
    bar.changeMode(CSwitchEx::ModeNavButton);
    bar.AddSeparator(60);
    bar.AddSeparator(20, true);
    QCOMPARE(withoutBackground(bar.painted()),
             lines("fillRect 2,183,34,12 SwitchBorder\nfillRect 2,3,34,52 SwitchBorder"));
}

void tst_SwitchExPaint::aSeparatorOutsideIsFilledAllTheSame()
{
    Bar bar(Qt::Horizontal, QSize(200, 40));
    bar.AddSeparator(10)->rect.moveLeft(500);
    QCOMPARE(withoutBackground(bar.painted()), lines("fillRect 500,0,10,40 SwitchBorder"));
    bar.changeMode(CSwitchEx::SwitchMode(9));
    bar.items.first()->rect.moveLeft(-50);
    QCOMPARE(withoutBackground(bar.painted()), lines("fillRect -50,0,10,40 SwitchBorder"));
}

// The image is 24 x 20: a cell of 30 x 40 in the bar, 40 x 28 in the column.
void tst_SwitchExPaint::imageItem_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* name, int mode, Qt::Orientation orientation, const char* state,
                        const char* expected) {
        QTest::newRow(name) << mode << orientation << QString::fromLatin1(state) << lines(expected);
    };
    // clang-format off
    row("image, normal", 6, Qt::Horizontal, "", R"(
drawImage 2,3,24,32 picture 1 0 false false)");
    row("image, hover", 6, Qt::Horizontal, "hover", R"(
drawImage 2,3,24,32 picture 1 0 false false)");
    row("image, selected", 6, Qt::Horizontal, "selected", R"(
drawImage 2,3,24,32 chosen 1 0 false false)");
    row("image, selected and hover", 6, Qt::Horizontal, "selected hover", R"(
drawImage 2,3,24,32 chosen 1 0 false false)");
    row("image, menu", 6, Qt::Horizontal, "menu", "");
    row("image, selected with menu", 6, Qt::Horizontal, "menu selected", "");
    row("image, column, normal", 6, Qt::Vertical, "", R"(
drawImage 2,3,34,20 picture 1 0 false false)");
    row("image, column, selected", 6, Qt::Vertical, "selected", R"(
drawImage 2,3,34,20 chosen 1 0 false false)");
    row("flat, normal", 3, Qt::Horizontal, "", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
drawImage 3,4,23,30 picture 1 0 false false)");
    row("flat, hover", 3, Qt::Horizontal, "hover", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
drawImage 3,4,23,30 picture 1 0 false false)");
    row("flat, selected", 3, Qt::Horizontal, "selected", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
drawImage 3,4,23,30 chosen 1 0 false false)");
    row("flat, menu", 3, Qt::Horizontal, "menu", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
drawImage 3,4,23,30 picture 1 0 false false)");
    row("flat, column, normal", 3, Qt::Vertical, "", R"(
drawRect 2,3,34,20 SwitchBorder 1 1
drawImage 3,4,33,19 picture 1 0 false false)");
    row("flat, column, selected", 3, Qt::Vertical, "selected", R"(
drawRect 2,3,34,20 SwitchBorder 1 1
drawLine SwitchSelLine 36,3 36,23 1 1
drawImage 3,4,33,19 chosen 1 0 false false)");
    // The others paint its label.
    row("switch", 1, Qt::Horizontal, "selected", R"(
drawRect 2,3,194,32 SwitchBorder 1 1
fillRect 3,4,193,30 SwitchBgSelect
drawText 3,4,193,30 0x184 SwitchFgSelect Switch "pic")");
    row("button", 2, Qt::Horizontal, "", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
drawText 2,3,24,32 0x184 SwitchFgNormal Switch "pic")");
    row("blue", 4, Qt::Horizontal, "hover", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
fillRect 3,4,22,30 SwitchBgHover
drawText 3,4,22,30 0x184 SwitchFgHover Switch "pic")");
    row("ik", 5, Qt::Horizontal, "hover", R"(
drawRect 2,3,24,32 SwitchBorder 1 1
fillRect 3,4,22,30 SwitchBgHover
drawText 3,4,22,30 0x184 SwitchFgHover Switch "pic")");
    row("navigation", 7, Qt::Horizontal, "selected", R"(
drawRect 2,3,24,32 NavSwitchBorder 1 1
fillRect 3,4,23,30 NavSwitchBgSelect
drawText 2,3,24,32 0x184 NavSwitchFgSelect NavSwitchSel "pic")");
    // clang-format on
}

void tst_SwitchExPaint::imageItem()
{
    QFETCH(int, mode);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QString, state);
    QFETCH(QStringList, expected);
    RecordingSkin::setBitmapSize(text("picture"), QSizeF(24, 20));
    const bool horizontal = orientation == Qt::Horizontal;
    Bar bar(orientation, horizontal ? QSize(200, 40) : QSize(40, 200), QMargins(2, 3, 4, 5));
    SwitchItem* const item = bar.AddImageSwitch(text("pic"), text("picture"), text("chosen"));
    QMenu menu;
    if (state.contains(text("menu")))
        item->menu = &menu;
    if (state.contains(text("selected")))
        bar.SetCurSel(item, false);
    if (state.contains(text("hover")))
        bar.hoverItem = item;
    bar.changeMode(CSwitchEx::SwitchMode(mode));
    const QStringList calls = bar.painted();
    QCOMPARE(mode == 6 ? calls : withoutBackground(calls), expected);
}

void tst_SwitchExPaint::itemsOutsideTheWidget()
{
    for (const CSwitchEx::SwitchMode mode : allModes) {
        Bar bar(Qt::Horizontal, QSize(200, 40));
        bar.setItemSize(50);
        SwitchItem* const item = bar.AddNormalSwitch(text("x"));
        bar.changeMode(mode);
        bar.SetCurSel(item, false);
        bar.backgroundEnable = true;
        const bool image = mode == CSwitchEx::ModeImageButton;
        item->isImage = image;

        const bool button = mode == CSwitchEx::ModeButton;
        const auto calls = [&](double x, double y) {
            item->rect = QRectF(x, y, 50, 40);
            const QStringList all = bar.painted();
            return image ? all : withoutBackground(all);
        };
        const auto outline = [&](const char* line) { return button ? lines(line) : QStringList(); };
        // Touching an edge is not intersecting.
        QCOMPARE(calls(200, 0), outline("drawRect 200,0,50,40 SwitchBorder 1 1"));
        QCOMPARE(calls(-50, 0), outline("drawRect -50,0,50,40 SwitchBorder 1 1"));
        QCOMPARE(calls(0, 40), outline("drawRect 0,40,50,40 SwitchBorder 1 1"));
        QCOMPARE(calls(0, -40), outline("drawRect 0,-40,50,40 SwitchBorder 1 1"));
        QVERIFY(calls(199, 0).size() > int(button));
        QVERIFY(calls(-49, 39).size() > int(button));
    }
}

void tst_SwitchExPaint::thePaddingDecidesWhatIsOutside()
{
    // The cell reaches into the widget, its content does not.
    Bar bar(Qt::Horizontal, QSize(200, 40), QMargins(10, 0, 0, 0));
    bar.changeMode(CSwitchEx::ModeNavButton);
    SwitchItem* const item = bar.AddNormalSwitch(text("x"));
    item->rect = QRectF(190, 0, 50, 40);
    QCOMPARE(withoutBackground(bar.painted()), QStringList());
    item->rect = QRectF(189, 0, 50, 40);
    QCOMPARE(withoutBackground(bar.painted()),
             lines("drawRect 199,0,40,40 NavSwitchBorder 1 1\n"
                   "fillRect 200,1,39,38 NavSwitchBgNormal\n"
                   "drawText 199,0,40,40 0x184 NavSwitchFgNormal NavSwitch \"x\""));
}

void tst_SwitchExPaint::anUnknownModePaintsNoItems()
{
    for (const int mode : {0, 8, -1, 99}) {
        Bar bar(Qt::Horizontal, QSize(200, 40));
        bar.AddNormalSwitch(text("x"));
        bar.AddNormalSwitch(text("y"), {}, true);
        bar.changeMode(CSwitchEx::SwitchMode(mode));
        QCOMPARE(withoutBackground(bar.painted()), QStringList());
    }
}

void tst_SwitchExPaint::theWholeBar()
{
    // Three fixed items and two end items in 400: 250 before the end items, 212 before the
    // scroll buttons, so two of three are shown.
    Bar bar(Qt::Horizontal, QSize(400, 60));
    bar.changeMode(CSwitchEx::ModeNavButton);
    bar.setBackgroundColorEnable(false);
    bar.setItemSize(100);
    QMenu menu;
    SwitchItem* const a = bar.AddNormalSwitch(text("a"));
    SwitchItem* const b = bar.AddNormalSwitch(text("b"));
    bar.AddNormalSwitch(text("c"));
    SwitchItem* const outer = bar.AddNormalSwitch(text("outer"), {}, true, &menu);
    bar.AddSeparator(50, true);
    bar.SetCurSel(a, false);
    bar.hoverItem = b;
    QCOMPARE(bar.painted(), lines(R"(
fillRect 0,0,399,59 FrameClient
drawRect 0,0,399,59 NavSwitchBorder 1 1
drawRect 212,0,19,60 SwitchBorder 1 1
drawRect 231,0,19,60 SwitchBorder 1 1
drawText 212,0,19,60 0x184 SwitchFgDisable Switch "◀"
drawText 231,0,19,60 0x184 SwitchFgNormal Switch "▶"
drawRect 300,0,100,60 NavSwitchBorder 1 1
drawText 300,0,100,60 0x184 NavSwitchFgNormal NavSwitch "outer▲"
fillRect 250,0,50,60 SwitchBorder
drawRect 0,0,100,60 NavSwitchBorder 1 1
fillRect 1,1,99,58 NavSwitchBgSelect
drawText 0,0,100,60 0x184 NavSwitchFgSelect NavSwitchSel "a"
drawRect 100,0,100,60 NavSwitchBorder 1 1
fillRect 101,1,99,58 NavSwitchBgHover
drawText 100,0,100,60 0x184 NavSwitchFgHover NavSwitch "b")"));

    bar.DoClickMoreItem(false);
    bar.SetCurSel(outer, false);
    QCOMPARE(bar.painted(), lines(R"(
fillRect 0,0,399,59 FrameClient
drawRect 0,0,399,59 NavSwitchBorder 1 1
drawRect 212,0,19,60 SwitchBorder 1 1
drawRect 231,0,19,60 SwitchBorder 1 1
drawText 212,0,19,60 0x184 SwitchFgNormal Switch "◀"
drawText 231,0,19,60 0x184 SwitchFgDisable Switch "▶"
drawRect 300,0,100,60 NavSwitchBorder 1 1
drawText 300,0,100,60 0x184 NavSwitchFgNormal NavSwitch "outer▲"
fillRect 250,0,50,60 SwitchBorder
drawRect 0,0,100,60 NavSwitchBorder 1 1
fillRect 1,1,99,58 NavSwitchBgHover
drawText 0,0,100,60 0x184 NavSwitchFgHover NavSwitch "b"
drawRect 100,0,100,60 NavSwitchBorder 1 1
fillRect 101,1,99,58 NavSwitchBgNormal
drawText 100,0,100,60 0x184 NavSwitchFgNormal NavSwitch "c")"));
}

void tst_SwitchExPaint::afterClearingOnlyTheBackgroundIsLeft()
{
    Bar bar(Qt::Horizontal, QSize(200, 40));
    for (int i = 0; i < 3; ++i)
        bar.AddNormalSwitch(text("x"));
    bar.AddNormalSwitch(text("y"), {}, true);
    bar.ClearAll();
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(withoutBackground(bar.painted()), QStringList());
    // One item where three were counted: that one is painted.
    bar.changeMode(CSwitchEx::ModeSwitch);
    bar.AddNormalSwitch(text("z"));
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(withoutBackground(bar.painted()).size(), 3);
}

void tst_SwitchExPaint::equalDivisionPaintsWhatTheLastLayoutCounted()
{
    Bar bar(Qt::Horizontal, QSize(200, 40));
    bar.changeMode(CSwitchEx::ModeSwitch);
    bar.AddNormalSwitch(text("e"), {}, true);
    bar.AddNormalSwitch(text("a"));
    const QStringList end = lines("drawRect 100,0,100,40 SwitchBorder 1 1\n"
                                  "fillRect 101,1,99,38 SwitchBgNormal\n"
                                  "drawText 101,1,99,38 0x184 SwitchFgNormal Switch \"e\"");
    QCOMPARE(withoutBackground(bar.painted()), end);

    bar.changeMode(CSwitchEx::ModeButton);
    bar.changeMode(CSwitchEx::ModeSwitch);
    QCOMPARE(withoutBackground(bar.painted()),
             end
                 + lines("drawRect 0,0,100,40 SwitchBorder 1 1\n"
                         "fillRect 1,1,99,38 SwitchBgNormal\n"
                         "drawText 1,1,99,38 0x184 SwitchFgNormal Switch \"a\""));
    bar.AddNormalSwitch(text("b"));
    bar.AddNormalSwitch(text("c"));
    QCOMPARE(withoutBackground(bar.painted()),
             lines("drawRect 150,0,50,40 SwitchBorder 1 1\n"
                   "fillRect 151,1,49,38 SwitchBgNormal\n"
                   "drawText 151,1,49,38 0x184 SwitchFgNormal Switch \"e\"\n"
                   "drawRect 0,0,50,40 SwitchBorder 1 1\n"
                   "fillRect 1,1,49,38 SwitchBgNormal\n"
                   "drawText 1,1,49,38 0x184 SwitchFgNormal Switch \"a\""));
}

TRADECONFIG_TEST_MAIN(tst_SwitchExPaint)

#include "tst_SwitchExPaint.moc"
