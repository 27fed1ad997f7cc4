#include "tradeConfig/TipLabel.h"

#include "tradeConfig/ReadableColour.h"
#include "tradeConfig/TipLabelAccessible.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPropertyAnimation>
#include <QStyle>

namespace {

constexpr int fadeMilliseconds = 2500;
constexpr double opaquePart = 0.6;

/**
 * An animation of an effect's opacity that runs to its end even when the effect is replaced.
 *
 * QPropertyAnimation stops without finished() in two cases: on the first step after its target's
 * death, and when another animation starts on the same property of an object at the same
 * address, which may be a later effect in the place of a dead one.
 */
class Fade : public QPropertyAnimation {
public:
    using QPropertyAnimation::QPropertyAnimation;

protected:
    void updateCurrentValue(const QVariant& value) override
    {
        if (targetObject())
            QPropertyAnimation::updateCurrentValue(value);
    }

    // Leaves out QPropertyAnimation's table of running animations by target address.
    void updateState(QAbstractAnimation::State newState,
                     QAbstractAnimation::State oldState) override
    {
        QVariantAnimation::updateState(newState, oldState); // NOLINT(bugprone-parent-virtual-call)
    }
};

} // namespace

CTipLabel::CTipLabel(const QString& text, bool isError, QWidget* parent)
    : QLabel(parent)
{
    // First of all: who is told of the text asks for the interface.
    TipLabelAccessible::install();
    resize(160, 20);
    setText(text);
    setStyleSheet(isError ? QStringLiteral("color:red;") : QStringLiteral("color:green;"));
}

void CTipLabel::SetMessageLabel(const QString& text)
{
    setText(text);
    // After a fade the label is transparent, and would stay so when the caller shows it.
    auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(graphicsEffect());
    if (effect && qFuzzyIsNull(effect->opacity()))
        effect->setOpacity(1.0);
}

void CTipLabel::SetAutoHide()
{
    auto* const effect = new QGraphicsOpacityEffect(this);
    effect->setOpacity(1.0);
    setGraphicsEffect(effect);

    auto* const fade = new Fade(effect, QByteArrayLiteral("opacity"), this);
    fade->setDuration(fadeMilliseconds);
    fade->setStartValue(1.0);
    fade->setKeyValueAt(opaquePart, 1.0);
    fade->setEndValue(0.0);
    fade->start(QAbstractAnimation::DeleteWhenStopped);
    connect(fade, &QAbstractAnimation::finished, this, &QWidget::hide);
}

void CTipLabel::paintEvent(QPaintEvent*)
{
    // A label takes the colour of its style sheet as it is, past its palette.
    QPalette shaded = palette();
    shaded.setColor(
        foregroundRole(),
        ReadableColour::on(shaded.color(backgroundRole()), shaded.color(foregroundRole())));
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())), shaded,
                          isEnabled(), text(), foregroundRole());
}
