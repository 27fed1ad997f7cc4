#include "tradeConfig/CaptionBar.h"

#include "tradeConfig/ImageButton.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int logoSize = 12;
constexpr int titleHeight = 14;
constexpr int buttonSize = 14;
constexpr int buttonSpacing = 10;

// How many frames the images have: one, or one for each of normal, mouse over and pressed.
constexpr int logoFrames = 1;
constexpr int buttonFrames = 3;

void makeFixed(CImageButton* button, int size)
{
    button->setFixedSize(size, size);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->setFocusPolicy(Qt::NoFocus);
}

// The buttons carry no text, so the tooltip is also what a screen reader says.
void describe(CImageButton* button, const QString& text)
{
    button->setToolTip(text);
    button->setAccessibleName(text);
}

// @p font, made smaller if its lines are higher than @p height: they would be cut.
QFont fittingFont(QFont font, int height)
{
    while (QFontMetrics(font).height() > height && QFontInfo(font).pixelSize() > 1)
        font.setPixelSize(QFontInfo(font).pixelSize() - 1);
    return font;
}

bool asksForRoom(QLayoutItem& item)
{
    if (item.expandingDirections().testFlag(Qt::Horizontal))
        return true;
    if (item.isEmpty() || !item.widget())
        return false;
    const QSizePolicy policy = item.widget()->sizePolicy();
    return policy.horizontalPolicy() == QSizePolicy::Ignored || policy.horizontalStretch() > 0;
}

// A row that expands when one of its items asks for room, in whatever way.
class ButtonRow : public QHBoxLayout {
public:
    Qt::Orientations expandingDirections() const override
    {
        for (int index = 0; index < count(); ++index) {
            if (asksForRoom(*itemAt(index)))
                return Qt::Horizontal;
        }
        return {};
    }
};

// Takes what is left of the row as long as nothing among the buttons asks for it.
class TitleItem : public QWidgetItem {
public:
    TitleItem(QLabel* title, const QLayout& buttons)
        : QWidgetItem(title)
        , m_buttons(buttons)
    {
    }

    Qt::Orientations expandingDirections() const override
    {
        const bool yields = isEmpty() || m_buttons.expandingDirections().testFlag(Qt::Horizontal);
        return yields ? Qt::Orientations() : Qt::Horizontal;
    }

private:
    const QLayout& m_buttons;
};

} // namespace

CCaptionBar::CCaptionBar(QWidget* parent)
    : QWidget(parent)
{
    const Qt::WindowFlags flags = window()->windowFlags();
    isDialog = flags.testFlag(Qt::Dialog);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(5, 3, 5, 3);
    buttonLayout = new ButtonRow;
    buttonLayout->setSpacing(buttonSpacing);
    if (flags.testFlag(Qt::WindowSystemMenuHint))
        addLogo(row);
    if (flags.testFlag(Qt::WindowTitleHint))
        addTitle(row);
    row->addLayout(buttonLayout);
    // Without a title to fill the row the buttons still stand at its end.
    row->setAlignment(buttonLayout, Qt::AlignRight);

    if (flags.testFlag(Qt::WindowMinimizeButtonHint)) {
        minimizeButton = addWindowButton(&CCaptionBar::clickMinimize);
        minimizeButton->setSingleImage(SkinKeys::Image::win_minimize(), buttonFrames, true, false);
        //: Tooltip of the caption button that minimises the window
        describe(minimizeButton, tr("最小化"));
    }
    if (flags.testFlag(Qt::WindowMaximizeButtonHint)) {
        maximizeButton = addWindowButton(&CCaptionBar::clickMaximize);
        showMaximizeState();
        window()->installEventFilter(this);
    }
    if (flags.testFlag(Qt::WindowCloseButtonHint)) {
        closeButton = addWindowButton(&CCaptionBar::clickClose);
        closeButton->setImage(SkinKeys::Image::PanelClose(), QString(), QString(), QString());
        //: Tooltip of the caption button that closes the window
        describe(closeButton, tr("关闭"));
    }
}

void CCaptionBar::addLogo(QHBoxLayout* row)
{
    logoButton = new CImageButton(this);
    logoButton->setSingleImage(SkinKeys::Image::logo(), logoFrames, false, true);
    logoButton->setAccessibleName(QGuiApplication::applicationDisplayName());
    makeFixed(logoButton, logoSize);
    row->addWidget(logoButton);
}

void CCaptionBar::addTitle(QHBoxLayout* row)
{
    titleLabel = new QLabel(window()->windowTitle(), this);
    titleLabel->setTextFormat(Qt::PlainText);
    fitTitle();
    titleLabel->setFixedHeight(titleHeight);
    titleLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    titleLabel->setAlignment(Qt::AlignVCenter);
    connect(window(), &QWidget::windowTitleChanged, titleLabel, &QLabel::setText);
    row->addItem(new TitleItem(titleLabel, *buttonLayout));
}

void CCaptionBar::fitTitle()
{
    titleLabel->setFont(QFont()); // the window's again
    titleLabel->setFont(fittingFont(titleLabel->font(), titleHeight));
}

CImageButton* CCaptionBar::addWindowButton(void (CCaptionBar::*onClicked)())
{
    auto* const button = new CImageButton(this);
    makeFixed(button, buttonSize);
    connect(button, &QAbstractButton::clicked, this, onClicked);
    buttonLayout->addWidget(button);
    return button;
}

void CCaptionBar::showMaximizeState()
{
    const bool maximized = window()->isMaximized();
    maximizeButton->setSingleImage(maximized ? SkinKeys::Image::win_renew()
                                             : SkinKeys::Image::win_normal(),
                                   buttonFrames, true, false);
    //: Tooltips of the caption button that restores or maximises the window
    describe(maximizeButton, maximized ? tr("还原") : tr("最大化"));
}

void CCaptionBar::setFrameEnabled(bool enabled)
{
    frameEnabled = enabled;
    update();
}

void CCaptionBar::setTitleEnabled(bool enabled)
{
    if (!titleLabel)
        return;
    titleLabel->setVisible(enabled);
    layout()->update();
}

void CCaptionBar::setTitle(const char* title)
{
    if (titleLabel)
        titleLabel->setText(QString::fromUtf8(title));
}

void CCaptionBar::addCaptionWidget(QWidget* widget)
{
    if (widget->parentWidget() == this)
        return;
    buttonLayout->addWidget(widget, 0, Qt::AlignVCenter);
    buttonLayout->update();
}

void CCaptionBar::addCaptionItem(QLayoutItem* item)
{
    buttonLayout->addItem(item);
    buttonLayout->update();
}

void CCaptionBar::clickMinimize()
{
    if (window()->isWindow())
        window()->showMinimized();
}

void CCaptionBar::clickMaximize()
{
    if (!window()->isWindow())
        return;
    if (window()->isMaximized())
        window()->showNormal();
    else
        window()->showMaximized();
}

void CCaptionBar::clickClose()
{
    if (!window()->isWindow())
        return;
    auto* const dialog = qobject_cast<QDialog*>(window());
    if (isDialog && window()->isModal() && dialog)
        dialog->reject();
    else
        window()->close();
}

void CCaptionBar::mousePressEvent(QMouseEvent* event)
{
    const QWidget* const top = window();
    dragOffset = event->globalPos() - top->pos();
    // The window system, whose events have a time, knows where in the window the pointer is. Where
    // the window itself is, the window manager may not have said yet.
    if (event->timestamp() != 0)
        dragOffset = mapTo(top, event->pos()) + top->geometry().topLeft() - top->pos();
}

void CCaptionBar::mouseReleaseEvent(QMouseEvent*) { dragOffset = QPoint(); }

void CCaptionBar::mouseMoveEvent(QMouseEvent* event)
{
    QWidget* const top = window();
    if (dragOffset.isNull() || !top->isWindow() || top->isFullScreen() || top->isMaximized())
        return;
    const QPoint position = event->globalPos() - dragOffset;
    // Measured from the screen's origin on purpose, not from where the drag began: no window is
    // dropped into the very corner of the screen.
    if (position.manhattanLength() <= QApplication::startDragDistance())
        return;
    top->move(position);
    dragOffset = event->globalPos() - top->pos();
}

void CCaptionBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && maximizeButton)
        clickMaximize();
}

void CCaptionBar::paintEvent(QPaintEvent*)
{
    if (!frameEnabled)
        return;
    QPainter painter(this);
    CorvelSkin::CSkin::Instance()->fillRect(painter, QRectF(rect()),
                                            window()->isModal() ? SkinKeys::Colour::PopupCaption()
                                                                : SkinKeys::Colour::FrameCaption());
}

void CCaptionBar::changeEvent(QEvent* event)
{
    if (titleLabel && event->type() == QEvent::FontChange)
        fitTitle();
    QWidget::changeEvent(event);
}

bool CCaptionBar::eventFilter(QObject* watched, QEvent* event)
{
    if (maximizeButton && watched == window() && event->type() == QEvent::WindowStateChange)
        showMaximizeState();
    return QWidget::eventFilter(watched, event);
}
