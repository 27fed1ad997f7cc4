#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

#include <utility>

/// Counts how often a visible widget is repainted.
class UpdateCounter : public QObject {
public:
    explicit UpdateCounter(QWidget& watched)
    {
        watched.installEventFilter(this);
        take();
    }

    /// The repaints since the last take. All requests between two takes give one.
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_paints, 0);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_paints += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_paints = 0;
};
