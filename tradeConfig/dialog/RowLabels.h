#pragma once

#include <initializer_list>

class QWidget;

/**
 * The labels of one line in rows that are lower than the line's box.
 *
 * Styles centre the box, which holds more room above the glyphs than below, with Chinese from a
 * fallback font more still: in a row that is too low the glyphs lose their feet.
 */
namespace RowLabels {

/// Has every 16-pixel label of @p pages stand on its lower edge instead, as far above it as its
/// glyphs reach down. Leaves the labels as they are if the line's box fits, or if the style has the
/// property "centresGlyphs": such a style sees to it itself. Once, when the form is built.
void fit(std::initializer_list<const QWidget*> pages);

} // namespace RowLabels
