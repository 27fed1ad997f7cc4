#pragma once

#include <QIcon>
#include <QIconEngine>

/// An icon that the skin draws: it changes with the skin, and is drawn afresh for every size.
class SkinIcon : public QIconEngine {
public:
    static QIcon of(const QString& imageKey);

    /// Where a style is asked for the picture itself: @p side logical pixels square, in the pixels
    /// of a device with @p ratio of them for one.
    static QPixmap picture(const QString& imageKey, int side, double ratio);

    explicit SkinIcon(const QString& imageKey);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    QString m_imageKey;
};
