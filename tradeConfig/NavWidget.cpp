#include "tradeConfig/NavWidget.h"

#include "tradeConfig/NavWidgetAccessible.h"
#include "tradeConfig/PartEvents.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

using CorvelSkin::CSkin;
namespace Colour = SkinKeys::Colour;
namespace Font = SkinKeys::Font;

namespace {

constexpr int bandHeight = 50;
constexpr int textLeft = 20;
constexpr int textTop = 15;
constexpr int textHeight = 20;
constexpr int bareColumn = 1; // of pixels at the right, where the parent shows
constexpr int noEntry = -1;

} // namespace

CNavWidget::CNavWidget(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    NavWidgetAccessible::install();
}

void CNavWidget::SetBtnList(QStringList list)
{
    PartEvents::tellEach(*this, QAccessible::ObjectDestroyed, count);
    items = std::move(list);
    count = items.size();
    ++m_fillings;
    PartEvents::tellEach(*this, QAccessible::ObjectCreated, count);
}

// The very first row of pixels belongs to no entry.
int CNavWidget::entryAt(int y) const
{
    return y > 0 && y < bandHeight * count ? y / bandHeight : noEntry;
}

QRectF CNavWidget::entryRect(int index) const
{
    return QRectF(0, bandHeight * index, width(), bandHeight);
}

void CNavWidget::press(int index)
{
    // A shorter list may have left the selection behind its end.
    const int before = selected < count ? selected : PartEvents::noPart;
    selected = index;
    PartEvents::tellSelection(*this, before, selected);
    const QPointer<CNavWidget> alive = this; // a slot may delete the list
    Q_EMIT signal_onclicked(selected);
    if (alive)
        update();
}

void CNavWidget::mousePressEvent(QMouseEvent* event)
{
    const int index = entryAt(event->y());
    if (index != noEntry)
        press(index);
}

void CNavWidget::mouseMoveEvent(QMouseEvent* event)
{
    const int index = entryAt(event->y());
    if (index == noEntry)
        return;
    hover = index;
    update();
}

void CNavWidget::leaveEvent(QEvent*)
{
    hover = selected;
    update();
}

void CNavWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int w = width();
    const int h = height();
    const int band = bandHeight * selected;
    const auto fill = [&painter](const QRectF& area, const QString& key) {
        CSkin::Instance()->fillRect(painter, area, key);
    };
    if (selected != 0)
        fill(QRectF(0, 0, w - bareColumn, band), Colour::NavSwitchBorder());
    fill(QRectF(0, band + bandHeight, w - bareColumn, h - band - bandHeight),
         Colour::NavSwitchBorder());
    if (hover != selected)
        fill(entryRect(hover), Colour::NavSwitchBgHover());
    for (int i = 0; i < count; ++i) {
        const bool isSelected = i == selected;
        CSkin::Instance()->drawText(
            painter, QRectF(textLeft, bandHeight * i + textTop, w, textHeight), Qt::AlignLeft,
            isSelected ? Colour::NavSwitchFgSelect() : Colour::NavSwitchFgNormal(),
            isSelected ? Font::NavSwitchSel() : Font::NavSwitch(), items[i]);
    }
}
