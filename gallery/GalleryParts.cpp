#include "gallery/GalleryParts.h"

#include <QAbstractAnimation>
#include <QMouseEvent>
#include <QPainter>
#include <QShowEvent>

HeldSwitchBar::HeldSwitchBar(Qt::Orientation barOrientation, QSize size, QWidget* parent)
    : CSwitchEx(parent, barOrientation)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    // Before the items: they are measured by the bar's size when they are added.
    setFixedSize(size);
}

void HeldSwitchBar::holdHover(SwitchItem* item)
{
    hoverItem = item;
    update();
}

void HeldSwitchBar::scrollForward(int clicks)
{
    for (int click = 0; click < clicks; ++click)
        DoClickMoreItem(false);
}

HeldNavList::HeldNavList(const QStringList& entries, QWidget* parent)
    : CNavWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    SetBtnList(entries);
}

void HeldNavList::hold(int selectedIndex, int hoverIndex)
{
    selected = selectedIndex;
    hover = hoverIndex;
    update();
}

HeldImageButton::HeldImageButton(QWidget* parent)
    : CImageButton(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void HeldImageButton::hold(bool whileHovered, bool whilePressed)
{
    hovered = whileHovered;
    pressed = whilePressed;
    update();
}

void HeldMessageBox::settle()
{
    QShowEvent show;
    showEvent(&show);
}

void holdFade(CTipLabel& tip, int milliseconds)
{
    tip.SetAutoHide();
    auto* const fade = tip.findChild<QAbstractAnimation*>(QString(), Qt::FindDirectChildrenOnly);
    fade->pause();
    fade->setCurrentTime(milliseconds);
}

WindowPreview::WindowPreview(std::unique_ptr<QWidget> shown, QWidget* parent)
    : QWidget(parent)
    , m_shown(std::move(shown))
{
    setFixedSize(m_shown->size());
}

WindowPreview::~WindowPreview() = default;

void WindowPreview::setAction(std::function<void()> action)
{
    m_action = std::move(action);
    setCursor(Qt::PointingHandCursor);
}

void WindowPreview::paintEvent(QPaintEvent*)
{
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    m_shown->render(&picture);
    QPainter(this).drawPixmap(0, 0, picture);
}

void WindowPreview::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_action && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        m_action();
}
