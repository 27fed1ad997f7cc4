#include "tradeConfig/ImageButton.h"

#include "tradeConfig/skin/CSkin.h"

#include <QEvent>
#include <QPainter>

CImageButton::CImageButton(QWidget* parent)
    : QPushButton(parent)
{
    setMouseTracking(true);
    connect(this, &QAbstractButton::pressed, this, &CImageButton::onPressed);
    connect(this, &QAbstractButton::released, this, &CImageButton::onReleased);
}

void CImageButton::setSingleImage(const QString& image, int frames, bool firstOptionOn,
                                  bool secondOptionOn)
{
    imageMode = frames;
    normalImage = image;
    firstOption = firstOptionOn;
    secondOption = secondOptionOn;
    update();
}

void CImageButton::setImage(const QString& normal, const QString& hover,
                            const QString& whilePressed, const QString& disabled)
{
    Q_ASSERT(!normal.isEmpty());
    imageMode = separateImages;
    normalImage = normal;
    hoverImage = hover.isEmpty() ? normal : hover;
    // The hover image, not the normal one: a button is pressed under the pointer.
    pressedImage = whilePressed.isEmpty() ? hoverImage : whilePressed;
    disabledImage = disabled.isEmpty() ? normal : disabled;
    update();
}

void CImageButton::setTextIndent(int indent)
{
    textIndent = indent;
    update();
}

void CImageButton::setShowText(bool show)
{
    showText = show;
    update();
}

void CImageButton::onPressed()
{
    pressed = true;
    update();
}

void CImageButton::onReleased()
{
    pressed = false;
    update();
}

void CImageButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    hovered = true;
    update();
}

void CImageButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    hovered = false;
    update();
}

int CImageButton::stripFrame() const
{
    switch (imageMode) {
    case 2:
        return pressed ? 1 : 0;
    case 4:
        if (!isEnabled())
            return 3;
        [[fallthrough]];
    case 3:
        return pressed ? 2 : hovered ? 1 : 0;
    default:
        return 0;
    }
}

const QString& CImageButton::stateImage() const
{
    if (!isEnabled())
        return disabledImage;
    return pressed ? pressedImage : hovered ? hoverImage : normalImage;
}

void CImageButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (imageMode != noImage) {
        const bool isStrip = imageMode != separateImages;
        CorvelSkin::CSkin::Instance()->drawImage(
            painter, QRectF(rect()), isStrip ? normalImage : stateImage(), isStrip ? imageMode : 1,
            isStrip ? stripFrame() : 0, firstOption, secondOption);
    }
    if (showText && !text().isEmpty())
        painter.drawText(rect().adjusted(textIndent, 0, 0, 0), Qt::AlignCenter, text());
}
