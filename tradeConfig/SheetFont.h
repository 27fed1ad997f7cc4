#pragma once

#include <QFont>
#include <QWidget>

namespace SheetFont {

/// Runs @p replaceSheet, which gives @p widget another style sheet, and keeps the widget's font: a
/// sheet in an old one's place would otherwise lose what is inherited from the window.
template <typename Replace> void keep(QWidget& widget, const Replace& replaceSheet)
{
    QFont font = widget.font();
    replaceSheet();
    if (widget.font() == font)
        return;
    // Explicitly: setFont() takes a list of families that is only inherited from the parent again
    // and puts the family in front of it, which makes it another font.
    font.setFamilies(font.families());
    widget.setFont(font);
}

} // namespace SheetFont
