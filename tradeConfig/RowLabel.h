#pragma once

#include <QLabel>

/**
 * A label of one line in a row that is lower than the line's box.
 *
 * A font that falls back for Chinese reserves more above its glyphs than below, so a centred line
 * that is higher than its row loses the feet of its glyphs. Here the box reaches over both edges of
 * the row, farther over the upper one: the line stands higher and is cut by the row alone.
 * Without a meta-object of its own it is a QLabel to everybody.
 */
class RowLabel : public QLabel {
public:
    explicit RowLabel(QWidget* parent = nullptr)
        : QLabel(parent)
    {
        // With it every margin is at least zero.
        setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
        setContentsMargins(0, -spill - raise, 0, -spill + raise);
    }

private:
    static constexpr int spill = 4; ///< pixels the box is higher than the row, at each edge
    static constexpr int raise = 2; ///< pixels the line stands above the middle
};
