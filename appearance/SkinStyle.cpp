#include "appearance/SkinStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

// How much of the text's colour there is in that of a part; the rest is the window's.
constexpr double grooveShare = 0.06;
constexpr double lineShare = 0.16;
constexpr double thumbShare = 0.35;
constexpr double thumbShareHovered = 0.45;
constexpr double thumbSharePressed = 0.55;
constexpr double boxShare = 0.55;

QColor blend(const QPalette& palette, double share)
{
    const QColor& text = palette.color(QPalette::WindowText);
    const QColor& window = palette.color(QPalette::Window);
    const auto mixed
        = [share](int of, int with) { return qRound(of * share + with * (1 - share)); };
    return QColor(mixed(text.red(), window.red()), mixed(text.green(), window.green()),
                  mixed(text.blue(), window.blue()));
}

double thumbShareOf(const QStyleOptionSlider& bar)
{
    if (!(bar.activeSubControls & QStyle::SC_ScrollBarSlider))
        return thumbShare;
    if (bar.state & QStyle::State_Sunken)
        return thumbSharePressed;
    return bar.state & QStyle::State_MouseOver ? thumbShareHovered : thumbShare;
}

} // namespace

SkinStyle::SkinStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void SkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox)
        return;
    const State byKeyboard = State_HasFocus | State_KeyboardFocusChange;
    if ((option->state & byKeyboard) == byKeyboard)
        return; // Fusion shows the focus on the outline.
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(blend(option->palette, boxShare));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

void SkinStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* const frame
        = element == CE_ShapedFrame ? qstyleoption_cast<const QStyleOptionFrame*>(option) : nullptr;
    QRect line;
    if (frame && frame->frameShape == QFrame::HLine)
        line = QRect(frame->rect.x(), frame->rect.center().y(), frame->rect.width(), 1);
    else if (frame && frame->frameShape == QFrame::VLine)
        line = QRect(frame->rect.center().x(), frame->rect.y(), 1, frame->rect.height());
    if (line.isValid())
        painter->fillRect(line, blend(option->palette, lineShare));
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void SkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    const auto* const bar
        = control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr;
    if (bar)
        drawScrollBar(*bar, *painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void SkinStyle::drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                              const QWidget* widget) const
{
    constexpr double sideGap = 3.0;
    constexpr double endGap = 1.0;
    const bool horizontal = bar.orientation == Qt::Horizontal;
    painter.save();
    painter.fillRect(bar.rect, blend(bar.palette, grooveShare));

    const QRectF slider = proxy()->subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    const QRectF thumb = horizontal ? slider.adjusted(endGap, sideGap, -endGap, -sideGap)
                                    : slider.adjusted(sideGap, endGap, -sideGap, -endGap);
    if (bar.maximum > bar.minimum && thumb.isValid()) {
        const double radius = qMin(thumb.width(), thumb.height()) / 2.0;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(blend(bar.palette, thumbShareOf(bar)));
        painter.drawRoundedRect(thumb, radius, radius);
    }

    for (const SubControl line : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
        constexpr int side = 8;
        QStyleOption arrow(bar);
        const QPoint centre = proxy()->subControlRect(CC_ScrollBar, &bar, line, widget).center();
        arrow.rect = QRect(centre - QPoint(side / 2 - 1, side / 2 - 1), QSize(side, side));
        const bool atStart
            = horizontal ? centre.x() < bar.rect.center().x() : centre.y() < bar.rect.center().y();
        const PrimitiveElement arrows[2][2] = {{PE_IndicatorArrowDown, PE_IndicatorArrowUp},
                                               {PE_IndicatorArrowRight, PE_IndicatorArrowLeft}};
        proxy()->drawPrimitive(arrows[horizontal][atStart], &arrow, &painter, widget);
    }
    painter.restore();
}
