#pragma once

#include <QString>

/**
 * Every key that the module passes to the skin service, once: name, who passes it, its role.
 *
 * SkinKeys::Colour::SwitchBorder() and its like give the key as a string without allocating;
 * SkinKeys::colours, fonts and images list them for skins and for tests.
 */
// clang-format off
#define SKIN_COLOUR_KEYS(KEY) \
    KEY(SwitchBackground, "switch bar", "background of the bar") \
    KEY(FrameClient, "switch bar", "background of the bar when its own colour is disabled") \
    KEY(SwitchBorder, "switch bar", "outline of bar, items and scroll buttons; separators") \
    KEY(SwitchBgNormal, "switch bar", "item fill, normal") \
    KEY(SwitchBgHover, "switch bar", "item fill, mouse over") \
    KEY(SwitchBgSelect, "switch bar", "item fill, selected") \
    KEY(SwitchFgNormal, "switch bar", "item text, normal; enabled scroll arrow; items with a menu") \
    KEY(SwitchFgHover, "switch bar", "item text, mouse over") \
    KEY(SwitchFgSelect, "switch bar", "item text, selected") \
    KEY(SwitchFgDisable, "switch bar", "greyed scroll arrow") \
    KEY(SwitchSelLine, "switch bar", "line beside the selected item of a vertical bar") \
    KEY(NavSwitchBg, "switch bar", "background of the bar in navigation mode") \
    KEY(NavSwitchBorder, "switch bar, navigation list", "outlines in navigation mode; fill of the list") \
    KEY(NavSwitchBgNormal, "switch bar", "item fill in navigation mode, normal") \
    KEY(NavSwitchBgHover, "switch bar, navigation list", "item fill in navigation mode, mouse over") \
    KEY(NavSwitchBgSelect, "switch bar", "item fill in navigation mode, selected") \
    KEY(NavSwitchFgNormal, "switch bar, navigation list", "text in navigation mode, normal") \
    KEY(NavSwitchFgHover, "switch bar", "text in navigation mode, mouse over") \
    KEY(NavSwitchFgSelect, "switch bar, navigation list", "text in navigation mode, selected") \
    KEY(FrameCaption, "caption bar", "caption of a modeless window") \
    KEY(PopupCaption, "caption bar", "caption of a modal window") \
    KEY(PopupClient, "message box", "client area") \
    KEY(PopupBorder, "message box", "outline")

#define SKIN_FONT_KEYS(KEY) \
    KEY(Switch, "switch bar", "text of every mode but navigation; all measurements; arrows") \
    KEY(NavSwitch, "switch bar, navigation list", "text in navigation mode, normal and hover") \
    KEY(NavSwitchSel, "switch bar, navigation list", "text of the selected item in navigation mode")

#define SKIN_IMAGE_KEYS(KEY) \
    KEY(logo, "caption bar", "application logo, one frame") \
    KEY(win_minimize, "caption bar", "minimise button: normal, hover, pressed") \
    KEY(win_renew, "caption bar", "restore button: normal, hover, pressed") \
    KEY(win_normal, "caption bar", "maximise button: normal, hover, pressed") \
    KEY(PanelClose, "caption bar", "close button, one frame for every state")
// clang-format on

namespace SkinKeys {

struct KeyInfo {
    const char* name;
    const char* passedBy;
    const char* role;
};

#define SKIN_KEY_FUNCTION(key, passedBy, role)                                                     \
    inline QString key() { return QStringLiteral(#key); }
#define SKIN_KEY_ROW(key, passedBy, role) {#key, passedBy, role},

namespace Colour {
SKIN_COLOUR_KEYS(SKIN_KEY_FUNCTION)
}
namespace Font {
SKIN_FONT_KEYS(SKIN_KEY_FUNCTION)
}
namespace Image {
SKIN_IMAGE_KEYS(SKIN_KEY_FUNCTION)
}

inline constexpr KeyInfo colours[] = {SKIN_COLOUR_KEYS(SKIN_KEY_ROW)};
inline constexpr KeyInfo fonts[] = {SKIN_FONT_KEYS(SKIN_KEY_ROW)};
inline constexpr KeyInfo images[] = {SKIN_IMAGE_KEYS(SKIN_KEY_ROW)};

#undef SKIN_KEY_ROW
#undef SKIN_KEY_FUNCTION

} // namespace SkinKeys
