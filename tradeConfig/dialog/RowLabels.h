#pragma once

class QWidget;

/**
 * The labels of one line in rows that are lower than the line's box.
 *
 * A font that falls back for Chinese reserves more above its glyphs than below, so a centred line
 * that is higher than its row loses the feet of its glyphs.
 */
namespace RowLabels {

/// Lets the box of every 16-pixel label of @p form reach over both edges of its row, farther over
/// the upper one: the line stands higher and is cut by the row alone. Once, when the form is built.
void fit(const QWidget& form);

} // namespace RowLabels
