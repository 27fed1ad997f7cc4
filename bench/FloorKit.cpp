#include "bench/FloorKit.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QColor frame(0xF8, 0xF9, 0xFB);
const QColor border(0xE4, 0xE9, 0xF0);
const QColor normal(0xEE, 0xF1, 0xF5);
const QColor hovered(0xD6, 0xE1, 0xF3);
const QColor chosen(0xF8, 0xF9, 0xFB);
const QColor normalText(0x4A, 0x55, 0x64);
const QColor hoveredText(0x17, 0x20, 0x2C);
const QColor chosenText(0x1D, 0x56, 0xC4);
const QColor buttonBorder(0xD3, 0xDA, 0xE4);
const QColor buttonText(0x3D, 0x47, 0x54);
const QColor greyText(0x7F, 0x88, 0x96);

QFont makeFont(int weight)
{
    QFont font;
    font.setFamilies({QStringLiteral("PingFang SC"), QStringLiteral("PingFang TC"),
                      QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC"),
                      QStringLiteral("Source Han Sans SC"), QStringLiteral("sans-serif")});
    font.setPixelSize(13);
    font.setWeight(weight);
    return font;
}

const QFont& normalFont()
{
    static const QFont font = makeFont(QFont::Normal);
    return font;
}

const QFont& chosenFont()
{
    static const QFont font = makeFont(QFont::DemiBold);
    return font;
}

void outline(QPainter& painter, const QRectF& rect, const QColor& colour)
{
    painter.fillRect(QRectF(rect.x(), rect.y(), rect.width() + 1, 1), colour);
    painter.fillRect(QRectF(rect.x(), rect.bottom(), rect.width() + 1, 1), colour);
    painter.fillRect(QRectF(rect.x(), rect.y() + 1, 1, rect.height() - 1), colour);
    painter.fillRect(QRectF(rect.right(), rect.y() + 1, 1, rect.height() - 1), colour);
}

constexpr int centredLine = Qt::AlignCenter | Qt::TextSingleLine;
constexpr int scrollButtons = 38;

} // namespace

FloorList::FloorList(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

void FloorList::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int top = 50 * m_selected;
    painter.fillRect(QRectF(0, 0, width() - 1, top), border);
    painter.fillRect(QRectF(0, top + 50, width() - 1, height() - top - 50), border);
    if (m_hover != m_selected)
        painter.fillRect(QRectF(0, 50 * m_hover, width(), 50), hovered);
    painter.setPen(normalText);
    painter.setFont(normalFont());
    for (int index = 0; index < entries.size(); ++index) {
        if (index != m_selected)
            painter.drawText(QRectF(20, 50 * index + 15, width(), 20), Qt::AlignLeft,
                             entries.at(index));
    }
    painter.setPen(chosenText);
    painter.setFont(chosenFont());
    painter.drawText(QRectF(20, top + 15, width(), 20), Qt::AlignLeft, entries.at(m_selected));
}

void FloorList::mousePressEvent(QMouseEvent* event)
{
    m_selected = event->y() / 50;
    Q_EMIT pressed(m_selected);
    update();
}

void FloorList::mouseMoveEvent(QMouseEvent* event)
{
    m_hover = event->y() / 50;
    update();
}

FloorBar::FloorBar(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

void FloorBar::add(const QString& label, int extent)
{
    m_items.append({label, QRectF(m_end, 0, extent, height())});
    m_end += extent;
    m_scrolls = m_end > width();
    const int room = m_scrolls ? width() - scrollButtons : width();
    if (m_end <= room)
        m_shown = m_items.size();
    else
        m_shown = qMin(m_shown, room / extent);
    update();
}

void FloorBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF bar = rect().adjusted(0, 0, -1, -1);
    painter.fillRect(bar, frame);
    outline(painter, bar, border);
    if (m_scrolls) {
        const QRectF back(width() - scrollButtons, 0, scrollButtons / 2.0, height());
        const QRectF forward = back.translated(scrollButtons / 2.0, 0);
        outline(painter, back, buttonBorder);
        outline(painter, forward, buttonBorder);
        painter.setFont(normalFont());
        painter.setPen(greyText);
        painter.drawText(back, centredLine, QStringLiteral("◀"));
        painter.setPen(buttonText);
        painter.drawText(forward, centredLine, QStringLiteral("▶"));
    }
    for (int index = 0; index < m_shown; ++index) {
        const Item& item = m_items.at(index);
        const bool selected = index == m_selected;
        outline(painter, item.cell, border);
        const bool hover = index == m_hover;
        painter.fillRect(item.cell.adjusted(1, 1, 0, -1),
                         selected    ? chosen
                             : hover ? hovered
                                     : normal);
        painter.setPen(selected ? chosenText : hover ? hoveredText : normalText);
        painter.setFont(selected ? chosenFont() : normalFont());
        painter.drawText(item.cell, centredLine, item.label);
    }
}

int FloorBar::indexAt(const QPointF& point) const
{
    for (int index = 0; index < m_items.size(); ++index) {
        if (m_items.at(index).cell.contains(point))
            return index;
    }
    return -1;
}

void FloorBar::mousePressEvent(QMouseEvent* event)
{
    m_selected = indexAt(event->localPos());
    update();
}

void FloorBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (indexAt(event->localPos()) == m_selected)
        Q_EMIT clicked(m_selected);
}

void FloorBar::mouseMoveEvent(QMouseEvent* event)
{
    m_hover = indexAt(event->localPos());
    update();
}

bool FloorKeyEdit::event(QEvent* event)
{
    // The line edit would compare the key with every editing shortcut there is.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void FloorKeyEdit::keyPressEvent(QKeyEvent* event)
{
    setText(
        QKeySequence(event->key() + int(event->modifiers())).toString(QKeySequence::NativeText));
    Q_EMIT captured(text());
}
