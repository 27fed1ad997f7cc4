#include "appearance/SkinStyle.h"

#include "appearance/SkinIcon.h"
#include "tradeConfig/ReadableColour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTextLayout>
#include <QtMath>

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

/// Around what has the focus.
void drawFocusRing(QPainter& painter, const QRect& area, const QPalette& palette)
{
    constexpr double width = 2.0;
    constexpr double radius = 3.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ReadableColour::focusRing(palette), width));
    painter.setBrush(Qt::NoBrush);
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

double thumbShareOf(const QStyleOptionSlider& bar)
{
    if (!(bar.activeSubControls & QStyle::SC_ScrollBarSlider))
        return thumbShare;
    if (bar.state & QStyle::State_Sunken)
        return thumbSharePressed;
    return bar.state & QStyle::State_MouseOver ? thumbShareHovered : thumbShare;
}

/**
 * Where the box of a line begins so that its capitals and digits are in the middle of @p area.
 *
 * The font alone decides, not the text: all lines of a font stand on the same height.
 */
int lineTop(const QRect& area, const QFontMetrics& metrics)
{
    const int surplus = qRound(metrics.ascent() - (metrics.height() + metrics.capHeight()) / 2.0);
    return area.y() + qFloor((area.height() - metrics.height()) / 2.0) - surplus;
}

/// How much higher than at @p baseline the @p text has to stand in the low @p row not to lose the
/// feet of its letters: a pixel of the device, if their heads leave room for it.
double feetRoom(const QPainter& painter, const QRect& row, double baseline, const QString& text)
{
    const double pixel = 1.0 / painter.deviceTransform().m22();
    const QRectF ink = QFontMetricsF(painter.font()).tightBoundingRect(text);
    const bool feetStickOut = baseline + ink.bottom() + pixel / 2 > row.bottom() + 1;
    const bool headsHaveRoom = baseline + ink.top() - pixel >= row.top();
    return feetStickOut && headsHaveRoom ? pixel : 0.0;
}

struct TextBox {
    double ascent; ///< how far it begins above the baseline
    double height;
};

/// The box of @p text. A font that falls back for Chinese reserves more there than for letters.
TextBox boxOf(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return {line.ascent(), line.height()};
}

/// The skin's image for a picture; empty for those that the toolkit draws.
QString imageOf(QStyle::StandardPixmap icon)
{
    switch (uint(icon)) {
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("message_information");
    case QStyle::SP_MessageBoxWarning:
        return QStringLiteral("message_warning");
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("message_critical");
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("message_question");
    case SkinStyle::SettingsPicture:
        return QStringLiteral("tool_settings");
    case SkinStyle::UndoPicture:
        return QStringLiteral("tool_undo");
    default:
        return QString();
    }
}

} // namespace

SkinStyle::SkinStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
    // The settings module then leaves its labels as they are.
    setProperty("centresGlyphs", true);
}

void SkinStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool enabled, const QString& text,
                             QPalette::ColorRole role) const
{
    const bool isLine = !(flags & Qt::TextWordWrap) && !text.contains(QLatin1Char('\n'));
    if (!isLine || !(flags & Qt::AlignVCenter)) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
        return;
    }
    const QFontMetrics metrics = painter->fontMetrics();
    double baseline = lineTop(rect, metrics) + metrics.ascent();
    if (rect.height() < metrics.height())
        baseline -= feetRoom(*painter, rect, baseline, text);
    const double ascent = boxOf(text, painter->font()).ascent;
    const QRectF box(rect.x(), baseline - ascent, rect.width(), ascent + metrics.height());
    const QPen pen = painter->pen();
    if (role != QPalette::NoRole)
        painter->setPen(QPen(palette.brush(role), pen.widthF()));
    painter->drawText(box, (flags & ~Qt::AlignVertical_Mask) | Qt::AlignTop, text);
    painter->setPen(pen);
}

QRect SkinStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const
{
    QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents) {
        // A line edit draws its text itself, in the middle of this rectangle.
        const QFontMetrics& metrics = option->fontMetrics;
        rect.setTop(2 * lineTop(rect, metrics) + metrics.height() - rect.bottom() - 2);
    }
    if (element == SE_CheckBoxFocusRect)
        rect = {rect.x(), option->rect.y(), rect.width() + 2, option->rect.height()};
    const auto* const item = element == SE_ItemViewItemText
        ? qstyleoption_cast<const QStyleOptionViewItem*>(option)
        : nullptr;
    // Without a text the rectangle is for a widget in the cell, which fills it.
    if (item && !item->text.isEmpty()) {
        // The toolkit puts the middle of the text's box into the middle of this rectangle.
        const double wanted
            = rect.y() + (rect.height() + QFontMetrics(item->font).capHeight()) / 2.0;
        const TextBox box = boxOf(item->text, item->font);
        const int top = rect.y() + rect.height() / 2 - int(box.height) / 2;
        const double baseline = top + box.ascent;
        rect.translate(0, qRound(wanted - baseline));
    }
    return rect;
}

void SkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    const State byKeyboard = State_HasFocus | State_KeyboardFocusChange;
    const bool isReachedByKeyboard = (option->state & byKeyboard) == byKeyboard;
    if (element == PE_FrameFocusRect && qobject_cast<const QAbstractButton*>(widget)) {
        if (isReachedByKeyboard && !qobject_cast<const QPushButton*>(widget))
            drawFocusRing(*painter, option->rect, option->palette);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_PanelButtonCommand) {
        if (option->state & State_HasFocus)
            drawFocusRing(*painter, option->rect, option->palette);
    } else if (element == PE_IndicatorCheckBox) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(isReachedByKeyboard ? ReadableColour::focusRing(option->palette)
                                            : blend(option->palette, boxShare));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
        painter->restore();
    }
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
    if (bar) {
        drawScrollBar(*bar, *painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool holdsAValue = control == CC_ComboBox || control == CC_SpinBox;
    if (holdsAValue && (option->state & State_HasFocus))
        drawFocusRing(*painter, option->rect, option->palette);
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

QIcon SkinStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                              const QWidget* widget) const
{
    const QString image = imageOf(icon);
    return image.isEmpty() ? QProxyStyle::standardIcon(icon, option, widget) : SkinIcon::of(image);
}

QPixmap SkinStyle::standardPixmap(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const
{
    const QString image = imageOf(icon);
    if (image.isEmpty())
        return QProxyStyle::standardPixmap(icon, option, widget);
    return SkinIcon::picture(image, proxy()->pixelMetric(PM_MessageBoxIconSize, option, widget),
                             widget ? widget->devicePixelRatioF() : qApp->devicePixelRatio());
}
