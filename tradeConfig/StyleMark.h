#pragma once

#include <QString>
#include <QWidget>

/// The red and green marks of checked inputs.
namespace StyleMark {

/// Marks @p input green when accepted, red when not; leaves an equal mark alone, since setting
/// a style sheet costs a full restyling even when nothing changes. The font stays: a new sheet in
/// an old one's place would otherwise lose what the input inherits from its form.
inline void set(QWidget& input, bool accepted)
{
    const QString mark = accepted ? QStringLiteral("color:green") : QStringLiteral("color:red");
    if (input.styleSheet() == mark)
        return;
    QFont font = input.font();
    input.setStyleSheet(mark);
    if (input.font() == font)
        return;
    // As they are: otherwise the family is put in front of them once more or once less.
    font.setFamilies(font.families());
    input.setFont(font);
}

} // namespace StyleMark
