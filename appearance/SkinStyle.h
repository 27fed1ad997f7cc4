#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

/**
 * Fusion, which follows a skin's palette everywhere, with three things drawn to be seen on any skin
 * and at any scale.
 *
 * Fusion paints a scroll bar's thumb lighter than its groove, so that on a light skin the groove
 * looks like the thumb; it outlines a check box darker than the window, so that on a dark skin an
 * empty box has no outline; and its separating lines fall between two pixels at 150 % and vanish.
 */
class SkinStyle : public QProxyStyle {
    Q_OBJECT
public:
    SkinStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;

private:
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                       const QWidget* widget) const;
};
