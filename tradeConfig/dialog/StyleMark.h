#pragma once

#include "tradeConfig/dialog/SheetFont.h"

#include <QString>
#include <QWidget>

/// The red and green marks of checked inputs.
namespace StyleMark {

/// Marks @p input green when accepted, red when not; leaves an equal mark alone, since setting
/// a style sheet costs a full restyling even when nothing changes. The font stays.
inline void set(QWidget& input, bool accepted)
{
    const QString mark = accepted ? QStringLiteral("color:green") : QStringLiteral("color:red");
    if (input.styleSheet() != mark)
        SheetFont::keep(input, [&] { input.setStyleSheet(mark); });
}

} // namespace StyleMark
