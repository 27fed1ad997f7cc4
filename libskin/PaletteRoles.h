#pragma once

#include <QPalette>
#include <QString>

namespace CorvelSkin {

struct PaletteRole {
    const char* name;
    QPalette::ColorRole role;
};

/// The roles that a skin's palette sections may colour.
inline constexpr PaletteRole paletteRoles[] = {
    {"Window", QPalette::Window},
    {"WindowText", QPalette::WindowText},
    {"Base", QPalette::Base},
    {"AlternateBase", QPalette::AlternateBase},
    {"Text", QPalette::Text},
    {"PlaceholderText", QPalette::PlaceholderText},
    {"Button", QPalette::Button},
    {"ButtonText", QPalette::ButtonText},
    {"BrightText", QPalette::BrightText},
    {"Light", QPalette::Light},
    {"Midlight", QPalette::Midlight},
    {"Mid", QPalette::Mid},
    {"Dark", QPalette::Dark},
    {"Shadow", QPalette::Shadow},
    {"Highlight", QPalette::Highlight},
    {"HighlightedText", QPalette::HighlightedText},
    {"Link", QPalette::Link},
    {"LinkVisited", QPalette::LinkVisited},
    {"ToolTipBase", QPalette::ToolTipBase},
    {"ToolTipText", QPalette::ToolTipText},
};

/// The row of @p name, null if no role has that name.
inline const PaletteRole* paletteRole(const QString& name)
{
    for (const PaletteRole& row : paletteRoles) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

} // namespace CorvelSkin
