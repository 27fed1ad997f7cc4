#pragma once

#include <QRectF>
#include <QSize>

/// The direction of a switch bar: extents and edges run along it, the breadth across it.
class SwitchAxis {
public:
    explicit SwitchAxis(Qt::Orientation orientation)
        : m_horizontal(orientation == Qt::Horizontal)
    {
    }

    double extent(const QRectF& rect) const { return m_horizontal ? rect.width() : rect.height(); }
    int extent(QSize size) const { return m_horizontal ? size.width() : size.height(); }
    int breadth(QSize size) const { return m_horizontal ? size.height() : size.width(); }
    double nearEdge(const QRectF& rect) const { return m_horizontal ? rect.left() : rect.top(); }
    double farEdge(const QRectF& rect) const { return m_horizontal ? rect.right() : rect.bottom(); }

    void setExtent(QRectF& rect, double extent) const
    {
        m_horizontal ? rect.setWidth(extent) : rect.setHeight(extent);
    }
    void setBreadth(QRectF& rect, double breadth) const
    {
        m_horizontal ? rect.setHeight(breadth) : rect.setWidth(breadth);
    }
    void moveNearEdge(QRectF& rect, double to) const
    {
        m_horizontal ? rect.moveLeft(to) : rect.moveTop(to);
    }
    void moveFarEdge(QRectF& rect, double to) const
    {
        m_horizontal ? rect.moveRight(to) : rect.moveBottom(to);
    }
    void move(QRectF& rect, double by) const
    {
        m_horizontal ? rect.translate(by, 0) : rect.translate(0, by);
    }

    /// A rectangle that begins at @p nearEdge along the bar and at 0 across it.
    QRectF rectangle(double nearEdge, double extent, double breadth) const
    {
        return m_horizontal ? QRectF(nearEdge, 0, extent, breadth)
                            : QRectF(0, nearEdge, breadth, extent);
    }

private:
    bool m_horizontal;
};
