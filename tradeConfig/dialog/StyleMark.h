#pragma once

#include "tradeConfig/MarkShade.h"

#include <QLineEdit>

/// The red and green marks of checked inputs.
namespace StyleMark {

/// Marks @p input green when accepted, red when not; leaves an equal mark alone, since setting
/// a style sheet restyles the field even when nothing changes.
inline void set(QLineEdit& input, bool accepted)
{
    const QString mark = accepted ? QStringLiteral("color:green") : QStringLiteral("color:red");
    if (input.styleSheet() != mark)
        MarkShade::replaceSheet(input, mark);
}

} // namespace StyleMark
