#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QPainter>

using CorvelSkin::CSkin;
namespace Colour = SkinKeys::Colour;
namespace Font = SkinKeys::Font;

namespace {

using Key = QString (*)();

constexpr double lineWidth = 1.0;
constexpr int centredLine = Qt::AlignCenter | Qt::TextSingleLine;
constexpr int centredColumn = Qt::AlignCenter | Qt::TextWrapAnywhere;
constexpr int centredBottom = Qt::AlignCenter | Qt::AlignBottom;
constexpr int imageFrames = 1; // an image of the bar is no strip of frames
constexpr int onlyFrame = 0;

// How one state of an item looks. Without a fill key nothing is filled.
struct StateLook {
    Key fill;
    Key text;
    Key font;
};

// What the edges of an item's outline are moved by to get what is filled.
struct Inset {
    int left, top, right, bottom;
};

enum LookOption {
    OutlineOutside = 1, // items outside the widget keep their outline
    TextInOutline = 2, // the text is placed in the outline, not in the smaller filled area
    Column = 4, // a vertical bar writes one character a line and marks the selected item
    Images = 8, // image items show their image instead of fill and text
    ImagesOnly = 16, // only image items without a menu are painted
};

constexpr StateLook switchSelected{Colour::SwitchBgSelect, Colour::SwitchFgSelect, Font::Switch};
constexpr StateLook switchHover{Colour::SwitchBgHover, Colour::SwitchFgHover, Font::Switch};
constexpr StateLook switchNormal{Colour::SwitchBgNormal, Colour::SwitchFgNormal, Font::Switch};
constexpr StateLook switchMenu{nullptr, Colour::SwitchFgNormal, Font::Switch};

constexpr StateLook buttonSelected{nullptr, Colour::SwitchFgSelect, Font::Switch};
constexpr StateLook buttonHover{nullptr, Colour::SwitchFgHover, Font::Switch};
constexpr StateLook buttonNormal{nullptr, Colour::SwitchFgNormal, Font::Switch};

constexpr StateLook navSelected{Colour::NavSwitchBgSelect, Colour::NavSwitchFgSelect,
                                Font::NavSwitchSel};
constexpr StateLook navHover{Colour::NavSwitchBgHover, Colour::NavSwitchFgHover, Font::NavSwitch};
constexpr StateLook navNormal{Colour::NavSwitchBgNormal, Colour::NavSwitchFgNormal,
                              Font::NavSwitch};
constexpr StateLook navMenu{nullptr, Colour::NavSwitchFgNormal, Font::NavSwitch};

constexpr StateLook nothing{nullptr, nullptr, nullptr};

constexpr Inset none{0, 0, 0, 0};
constexpr Inset leftTop{1, 1, 0, 0};
constexpr Inset butRight{1, 1, 0, -1};
constexpr Inset allSides{1, 1, -1, -1};

} // namespace

// How the items of one mode look. A mode without a text key for menus draws items with a menu
// like those without one.
struct SwitchLook {
    Key outline;
    Inset horizontalInset;
    Inset verticalInset;
    StateLook selected;
    StateLook hover;
    StateLook normal;
    StateLook menu;
    int options;

    bool has(LookOption option) const { return (options & option) != 0; }
};

namespace {

// clang-format off
constexpr SwitchLook looks[] = {
    // ModeSwitch
    {Colour::SwitchBorder, butRight, butRight,
     switchSelected, switchHover, switchNormal, nothing, 0},
    // ModeButton
    {Colour::SwitchBorder, none, none,
     buttonSelected, buttonHover, buttonNormal, switchMenu, OutlineOutside},
    // ModeFlatButton
    {Colour::SwitchBorder, butRight, leftTop,
     switchSelected, switchHover, switchNormal, switchMenu, TextInOutline | Column | Images},
    // ModeFlatBlue
    {Colour::SwitchBorder, allSides, allSides,
     switchSelected, switchHover, switchNormal, switchMenu, 0},
    // ModeIKButton: meant to look like ModeFlatBlue
    {Colour::SwitchBorder, allSides, allSides,
     switchSelected, switchHover, switchNormal, switchMenu, 0},
    // ModeImageButton
    {nullptr, none, none,
     nothing, nothing, nothing, nothing, Images | ImagesOnly},
    // ModeNavButton
    {Colour::NavSwitchBorder, butRight, leftTop,
     navSelected, navHover, navNormal, navMenu, TextInOutline | Column},
};
// clang-format on

constexpr const SwitchLook& lookOf(CSwitchEx::SwitchMode mode)
{
    return looks[mode - CSwitchEx::ModeSwitch];
}

} // namespace

void CSwitchEx::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawBackground(painter);
    DrawMoreButton(painter);
    for (SwitchItem* item : qAsConst(endItems))
        DrawItem(painter, item);
    // ClearAll() leaves visibleCount as it is: there may be fewer items than it counts.
    for (int i = firstIndex; i < firstIndex + visibleCount && i < items.size(); ++i)
        DrawItem(painter, items[i]);
}

void CSwitchEx::DrawBackground(QPainter& painter)
{
    if (mode == ModeImageButton)
        return;
    const bool navigation = mode == ModeNavButton;
    const QRectF bar = rect().adjusted(0, 0, -1, -1);
    const Key own = navigation ? Colour::NavSwitchBg : Colour::SwitchBackground;
    const Key outline = navigation ? Colour::NavSwitchBorder : Colour::SwitchBorder;
    CSkin::Instance()->fillRect(painter, bar, backgroundEnable ? own() : Colour::FrameClient());
    CSkin::Instance()->drawRect(painter, bar, outline(), Qt::SolidLine, lineWidth);
}

void CSwitchEx::DrawMoreButton(QPainter& painter)
{
    if (!moreShown || moreRect.isEmpty())
        return;
    const bool horizontal = orientation == Qt::Horizontal;
    QRectF back = moreRect;
    QRectF forward = moreRect;
    if (horizontal) {
        const int middle = int(moreRect.center().x());
        back.setRight(middle);
        forward.setLeft(middle);
    } else {
        const int middle = int(moreRect.center().y());
        back.setBottom(middle);
        forward.setTop(middle);
    }
    if (mode != ModeImageButton) {
        for (const QRectF& half : {back, forward})
            CSkin::Instance()->drawRect(painter, half, Colour::SwitchBorder(), Qt::SolidLine,
                                        lineWidth);
    }
    const auto colour
        = [](bool grey) { return grey ? Colour::SwitchFgDisable() : Colour::SwitchFgNormal(); };
    const bool atStart = firstIndex < 1;
    const bool moreFollow = firstIndex + visibleCount < items.size();
    // Unlike the arrow right, the arrow down is grey while more items follow.
    CSkin::Instance()->drawText(painter, back, horizontal ? centredLine : centredBottom,
                                colour(atStart), Font::Switch(),
                                horizontal ? SWITCH_ARROW_LEFT : SWITCH_ARROW_UP);
    CSkin::Instance()->drawText(painter, forward, centredLine,
                                colour(horizontal ? !moreFollow : moreFollow), Font::Switch(),
                                horizontal ? SWITCH_ARROW_RIGHT : SWITCH_ARROW_DOWN);
}

void CSwitchEx::DrawItem(QPainter& painter, SwitchItem* item)
{
    if (item->isSeparator) {
        DrawSeparator(painter, item);
        return;
    }
    switch (mode) {
    case ModeSwitch:
        DrawSwith(painter, item);
        break;
    case ModeButton:
        DrawButton(painter, item);
        break;
    case ModeFlatButton:
        DrawFlatButton(painter, item);
        break;
    case ModeFlatBlue:
        DrawFlatBlue(painter, item);
        break;
    case ModeIKButton:
        DrawModeIKButton(painter, item);
        break;
    case ModeImageButton:
        DrawImageButton(painter, item);
        break;
    case ModeNavButton:
        DrawNavButton(painter, item);
        break;
    }
}

void CSwitchEx::DrawSeparator(QPainter& painter, SwitchItem* item)
{
    CSkin::Instance()->fillRect(painter, item->rect.marginsRemoved(padding),
                                Colour::SwitchBorder());
}

void CSwitchEx::DrawSwith(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeSwitch));
}

void CSwitchEx::DrawButton(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeButton));
}

void CSwitchEx::DrawFlatButton(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeFlatButton));
}

void CSwitchEx::DrawFlatBlue(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeFlatBlue));
}

void CSwitchEx::DrawModeIKButton(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeIKButton));
}

void CSwitchEx::DrawImageButton(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeImageButton));
}

void CSwitchEx::DrawNavButton(QPainter& painter, SwitchItem* item)
{
    drawLook(painter, *item, lookOf(ModeNavButton));
}

void CSwitchEx::drawLook(QPainter& painter, const SwitchItem& item, const SwitchLook& look)
{
    const QRectF outline = item.rect.marginsRemoved(padding);
    const bool inside = QRectF(rect()).intersects(outline);
    if (look.outline && (inside || look.has(OutlineOutside)))
        CSkin::Instance()->drawRect(painter, outline, look.outline(), Qt::SolidLine, lineWidth);
    if (!inside || (look.has(ImagesOnly) && (!item.isImage || item.menu)))
        return;

    const bool horizontal = orientation == Qt::Horizontal;
    const bool column = !horizontal && look.has(Column);
    const bool selected = &item == curSel;
    const Inset& inset = horizontal ? look.horizontalInset : look.verticalInset;
    const QRectF inner = outline.adjusted(inset.left, inset.top, inset.right, inset.bottom);
    QRectF text = look.has(TextInOutline) ? outline : inner;
    if (column) {
        const QSizeF character
            = CSkin::Instance()->textSize(this, Font::Switch(), QStringLiteral("一"));
        const double indent = (outline.width() - character.width()) / 2;
        text.adjust(indent, 0, -indent, 0);
        // Before the fill, which may cover a part of the line.
        if (selected)
            CSkin::Instance()->drawLine(painter, Colour::SwitchSelLine(), outline.topRight(),
                                        outline.bottomRight(), Qt::SolidLine, lineWidth);
    }
    if (look.has(Images) && item.isImage) {
        CSkin::Instance()->drawImage(painter, inner, selected ? item.selImage : item.image,
                                     imageFrames, onlyFrame, false, false);
        return;
    }

    const bool menu = item.menu && look.menu.text;
    const StateLook& state = menu ? look.menu
        : selected                ? look.selected
        : &item == hoverItem      ? look.hover
                                  : look.normal;
    if (state.fill)
        CSkin::Instance()->fillRect(painter, inner, state.fill());
    // CalcItemSize() measures a horizontal bar's arrow as "▼"; it is drawn as "▲".
    const QString& arrow = horizontal ? SWITCH_ARROW_UP : SWITCH_ARROW_RIGHT;
    CSkin::Instance()->drawText(painter, text, column ? centredColumn : centredLine, state.text(),
                                state.font(), menu ? item.label + arrow : item.label);
}
