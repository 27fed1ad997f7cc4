#include "appearance/SkinIcon.h"

#include "tradeConfig/skin/CSkin.h"

#include <QPainter>

namespace {

constexpr double disabledOpacity = 0.4;

} // namespace

SkinIcon::SkinIcon(const QString& imageKey)
    : m_imageKey(imageKey)
{
}

QIcon SkinIcon::of(const QString& imageKey) { return QIcon(new SkinIcon(imageKey)); }

QPixmap SkinIcon::picture(const QString& imageKey, int side, double ratio)
{
    const int pixels = qRound(side * ratio);
    QPixmap picture = SkinIcon(imageKey).pixmap({pixels, pixels}, QIcon::Normal, QIcon::Off);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void SkinIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const double opacity = painter->opacity();
    if (mode == QIcon::Disabled)
        painter->setOpacity(opacity * disabledOpacity);
    CorvelSkin::CSkin::Instance()->drawImage(*painter, rect, m_imageKey, 1, 0, true, true);
    painter->setOpacity(opacity);
}

QPixmap SkinIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
}

QIconEngine* SkinIcon::clone() const { return new SkinIcon(*this); }
