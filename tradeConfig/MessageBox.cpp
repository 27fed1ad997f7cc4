#include "tradeConfig/MessageBox.h"

#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int noCountdown = -1;
constexpr int tickMilliseconds = 1000;
constexpr int captionHeight = 30;
constexpr int buttonRowHeight = 25;
// What the box has around its text.
constexpr QSize roomWithIcon(200, 100);
constexpr QSize roomWithoutIcon(160, 80);

// Has this name because the text of the assertion below is fixed: "index < _countof(btns)".
template <typename T, std::size_t N> constexpr std::size_t _countof(T (&)[N]) { return N; }

struct IconRow {
    QMessageBox::Icon kind;
    QStyle::StandardPixmap pixmap;
};

constexpr IconRow icons[] = {
    {QMessageBox::Information, QStyle::SP_MessageBoxInformation},
    {QMessageBox::Warning, QStyle::SP_MessageBoxWarning},
    {QMessageBox::Critical, QStyle::SP_MessageBoxCritical},
    {QMessageBox::Question, QStyle::SP_MessageBoxQuestion},
};

struct ButtonRow {
    QMessageBox::StandardButton button;
    const char* text;
    bool isDefault;
};

// In the order in which the buttons fill the slots.
constexpr ButtonRow buttonRows[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("CMessageBox", "确定"), true},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("CMessageBox", "保存"), true},
    {QMessageBox::SaveAll, QT_TRANSLATE_NOOP("CMessageBox", "全部保存"), false},
    {QMessageBox::Open, QT_TRANSLATE_NOOP("CMessageBox", "打开"), true},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("CMessageBox", "是"), true},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("CMessageBox", "全是"), false},
    {QMessageBox::No, QT_TRANSLATE_NOOP("CMessageBox", "否"), false},
    {QMessageBox::NoToAll, QT_TRANSLATE_NOOP("CMessageBox", "全否"), false},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("CMessageBox", "终止"), false},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("CMessageBox", "重试"), false},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("CMessageBox", "忽略"), false},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("CMessageBox", "关闭"), false},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("CMessageBox", "取消"), false},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("CMessageBox", "放弃"), false},
    {QMessageBox::Help, QT_TRANSLATE_NOOP("CMessageBox", "帮助"), false},
    {QMessageBox::Apply, QT_TRANSLATE_NOOP("CMessageBox", "应用"), false},
    {QMessageBox::Reset, QT_TRANSLATE_NOOP("CMessageBox", "重置"), false},
    {QMessageBox::RestoreDefaults, QT_TRANSLATE_NOOP("CMessageBox", "还原默认值"), false},
};

bool answersBox(const QKeyEvent& press)
{
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return true;
    default:
        return press.matches(QKeySequence::Cancel);
    }
}

} // namespace

CMessageBox::CMessageBox(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                         const QString& title, QMessageBox::StandardButtons buttons,
                         int timeoutSeconds)
    : QDialog(parent)
    , countdown(timeoutSeconds)
{
    setupUi(this);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    caption->setFixedHeight(captionHeight);
    // What is left over goes above the buttons.
    verticalLayout->setStretchFactor(layout2, 1);
    verticalLayout->setAlignment(layout2, Qt::AlignHCenter | Qt::AlignBottom);
    QPushButton* const inOrder[] = {btn1, btn2, btn3, btn4, btn5, btn6};
    std::copy(std::begin(inOrder), std::end(inOrder), btns);
    installEventFilter(this);
    for (QPushButton* const button : btns)
        button->installEventFilter(this);

    showIcon(iconKind);
    msg->setText(text);
    msg->adjustSize();
    QSize size = msg->sizeHint() + (icon->isHidden() ? roomWithoutIcon : roomWithIcon);
    setWindowTitle(title);
    caption->setFrameEnabled(true);
    assignButtons(buttons);

    if (countdown >= 1) {
        showCountdown();
        btn1->setDefault(true);
        startTimer(tickMilliseconds, Qt::CoarseTimer);
    }
    if (!btn1->isHidden())
        size.rheight() += buttonRowHeight;
    resize(size);
    setWindowModality(Qt::WindowModal);
}

void CMessageBox::showIcon(QMessageBox::Icon iconKind)
{
    for (const IconRow& row : icons) {
        if (row.kind == iconKind) {
            icon->setPixmap(style()->standardPixmap(row.pixmap, nullptr, this));
            return;
        }
    }
    icon->hide();
}

void CMessageBox::assignButtons(QMessageBox::StandardButtons buttons)
{
    std::size_t index = 0;
    for (const ButtonRow& row : buttonRows) {
        if (!buttons.testFlag(row.button))
            continue;
        Q_ASSERT(index < _countof(btns));
        if (index == _countof(btns))
            break;
        QPushButton* const slot = btns[index++];
        slot->setText(tr(row.text));
        if (row.isDefault)
            slot->setDefault(true);
        connect(slot, &QAbstractButton::clicked, this,
                [this, button = row.button] { onButtonClick(button); });
    }
    for (; index < _countof(btns); ++index)
        btns[index]->hide();
}

void CMessageBox::showCountdown()
{
    //: Confirmation button that presses itself; %1 is the number of seconds left
    btn1->setText(tr("确定(%1)").arg(countdown, 0, 10, QLatin1Char(' ')));
}

void CMessageBox::onButtonClick(QMessageBox::StandardButton button) { done(button); }

void CMessageBox::timerEvent(QTimerEvent*)
{
    if (countdown < 1) {
        done(QMessageBox::Ok);
        return;
    }
    // Shown before it is counted down: the first number stands for two seconds.
    showCountdown();
    --countdown;
}

void CMessageBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    CorvelSkin::CSkin::Instance()->fillRect(painter, QRectF(rect()),
                                            SkinKeys::Colour::PopupClient());
    CorvelSkin::CSkin::Instance()->drawRect(painter, QRectF(rect()),
                                            SkinKeys::Colour::PopupBorder(), Qt::SolidLine, 1.0);
}

void CMessageBox::showEvent(QShowEvent* event)
{
    // Nothing is ever cut: a row of wide buttons or a tall icon may need more than was computed.
    resize(size().expandedTo(layout()->totalSizeHint()));
    QDialog::showEvent(event);
}

bool CMessageBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease)
        m_heldKeys.noteRelease(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyPress) {
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (answersBox(press) && !m_heldKeys.isPressedHere(press))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

int CMessageBox::message(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                         QMessageBox::StandardButtons buttons)
{
    return message(parent, iconKind, text, QCoreApplication::applicationName(), buttons);
}

int CMessageBox::message(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                         const QString& title, QMessageBox::StandardButtons buttons)
{
    return CMessageBox(parent, iconKind, text, title, buttons, noCountdown).exec();
}

int CMessageBox::timeout(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                         int seconds)
{
    return CMessageBox(parent, iconKind, text, QCoreApplication::applicationName(), QMessageBox::Ok,
                       seconds)
        .exec();
}

int CMessageBox::question(QWidget* parent, QMessageBox::Icon iconKind, const QString& text)
{
    return message(parent, iconKind, text, QMessageBox::Yes | QMessageBox::No);
}
