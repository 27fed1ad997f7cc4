#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

/**
 * Fusion, which follows a skin's palette everywhere, with a few things drawn to be seen on any skin
 * and at any scale.
 *
 * Fusion paints a scroll bar's thumb lighter than its groove, so that on a light skin the groove
 * looks like the thumb; it outlines a check box darker than the window, so that on a dark skin an
 * empty box has no outline; and its separating lines fall between two pixels at 150 % and vanish.
 * Its focus is a shade of the outline, which nobody sees on a dark skin: here it is a ring.
 *
 * It centres the box of a line, where this style centres its glyphs. The box holds more room above
 * them than below, and more still in a line with Chinese from a fallback font: a label, its field
 * and the buttons beside it stood on different heights, and lost their feet in low rows.
 */
class SkinStyle : public QProxyStyle {
    Q_OBJECT
public:
    /// Standard icons beside those of every style: the skin's, for tool bars.
    enum Picture { SettingsPicture = SP_CustomBase + 1, UndoPicture };

    SkinStyle();

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole role = QPalette::NoRole) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap icon, const QStyleOption* option,
                           const QWidget* widget = nullptr) const override;

private:
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                       const QWidget* widget) const;
};
