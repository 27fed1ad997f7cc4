#pragma once

#include <QLineEdit>
#include <QRectF>
#include <QStringList>
#include <QVector>
#include <QWidget>

/**
 * Plain widgets that look and answer like the kit's, painted straight by QPainter in the colours
 * and fonts of the built-in light skin. No modes, no keys, no measuring: the least there can be.
 */

/// The navigation list's look: bands of 50 pixels.
class FloorList : public QWidget {
    Q_OBJECT

public:
    explicit FloorList(QWidget* parent = nullptr);

    QStringList entries;

Q_SIGNALS:
    void pressed(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    int m_selected = 0;
    int m_hover = 0;
};

/// The horizontal switch bar's look in navigation mode, on the frame's colour.
class FloorBar : public QWidget {
    Q_OBJECT

public:
    explicit FloorBar(QWidget* parent = nullptr);

    /// Appends an item of @p extent pixels at the end of the others.
    void add(const QString& label, int extent);

Q_SIGNALS:
    void clicked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Item {
        QString label;
        QRectF cell;
    };

    int indexAt(const QPointF& point) const;

    QVector<Item> m_items;
    int m_end = 0; // of the last item
    int m_shown = 0; // items before the scroll buttons
    bool m_scrolls = false;
    int m_selected = 0;
    int m_hover = -1;
};

/// The key-capture cell: shows the key and reports it.
class FloorKeyEdit : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

public Q_SLOTS:
    void finished() { }

Q_SIGNALS:
    void captured(const QString& text);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
