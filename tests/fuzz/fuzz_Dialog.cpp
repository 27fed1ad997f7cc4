// The dialog on a random record, under random events. Nothing crashes; a refused save leaves the
// record alone, an accepted one stores values that the controls can hold, and the host's bytes
// stay untouched. Boxes are answered at once; the restarter is not there to be started.

#include "client/OwnedRecord.h"
#include "client/RecordFields.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "fuzz/RandomRecord.h"
#include "support/FakeTrade.h"
#include "support/Files.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTableWidget>
#include <QTimer>
#include <QWheelEvent>

#include <memory>

using RecordFields::Field;
using RecordFields::Kind;

namespace {

constexpr int mostEvents = 60;
constexpr int largestQuantity = 10000000;

/// Answers every modal box as soon as it is there, by one of its buttons or by closing it.
class Answers {
public:
    explicit Answers(FuzzInput& input)
        : m_input(input)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(0);
    }

private:
    void answer()
    {
        // A scroll bar's menu waits as well.
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
            return;
        }
        QWidget* const box = QApplication::activeModalWidget();
        if (!box || !box->isVisible())
            return;
        QList<QAbstractButton*> buttons;
        for (auto* button : box->findChildren<QAbstractButton*>()) {
            if (button->isVisible())
                buttons << button;
        }
        const int choice = m_input.below(buttons.size() + 1);
        if (choice < buttons.size())
            buttons.at(choice)->click();
        else
            box->close();
    }

    FuzzInput& m_input;
    QTimer m_timer;
};

Qt::KeyboardModifiers modifiers(FuzzInput& input)
{
    return Qt::KeyboardModifiers((input.byte() & 31) << 25);
}

void pressKey(QWidget* target, FuzzInput& input)
{
    constexpr int keys[]
        = {Qt::Key_0,      Qt::Key_1,     Qt::Key_5,       Qt::Key_9,     Qt::Key_A,
           Qt::Key_Z,      Qt::Key_F1,    Qt::Key_F5,      Qt::Key_F12,   Qt::Key_Tab,
           Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape,  Qt::Key_Up,    Qt::Key_Down,
           Qt::Key_PageUp, Qt::Key_Home,  Qt::Key_Delete,  Qt::Key_Shift, Qt::Key_Control,
           Qt::Key_Alt,    Qt::Key_Meta,  Qt::Key_unknown, Qt::Key_Plus,  Qt::Key_Backspace,
           Qt::Key_Backtab};
    const int choice = input.below(int(std::size(keys)) + 1);
    const int key = choice < int(std::size(keys)) ? keys[choice] : input.below(0x7fff);
    const Qt::KeyboardModifiers held = modifiers(input);
    const QString text = key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)) : QString();
    for (const QEvent::Type type :
         {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held, text);
        QApplication::sendEvent(target, &event);
    }
}

void mouse(QWidget* target, FuzzInput& input)
{
    const QPointF at(input.below(target->width() + 2) - 1, input.below(target->height() + 2) - 1);
    const QPointF global = target->mapToGlobal(at.toPoint());
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, at, global, button, held, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    };
    const Qt::MouseButton button = input.flag() ? Qt::LeftButton
        : input.flag()                          ? Qt::RightButton
                                                : Qt::MiddleButton;
    switch (input.below(5)) {
    case 0:
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        break;
    case 1: {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(target, &leave);
        break;
    }
    case 2: {
        QWheelEvent wheel(at, global, QPoint(), QPoint(0, input.flag() ? 120 : -120), Qt::NoButton,
                          modifiers(input), Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
        break;
    }
    case 3:
        send(QEvent::MouseButtonDblClick, button, button);
        send(QEvent::MouseButtonRelease, button, Qt::NoButton);
        break;
    default:
        send(QEvent::MouseButtonPress, button, button);
        send(QEvent::MouseButtonRelease, button, Qt::NoButton);
    }
}

void type(QWidget* target, FuzzInput& input)
{
    const QString text = QString::fromUtf8(input.bytes(12));
    if (input.flag()) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(target, &event);
        return;
    }
    for (const QChar character : text) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(target, &event);
    }
}

void callSlot(CTradeConfigWidget& dialog, QWidget* target, FuzzInput& input)
{
    switch (input.below(16)) {
    case 0:
        dialog.CellEditFinished(input.integer(),
                                QString::fromLocal8Bit(RandomRecord::someKeys(input)));
        break;
    case 1:
        dialog.CellEditFinished2(input.integer(),
                                 QString::fromLocal8Bit(RandomRecord::someKeys(input)));
        break;
    case 2:
        dialog.SelectFcSplit(input.integer());
        break;
    case 3:
        dialog.SelectFcKcSplit(input.integer());
        break;
    case 4:
        dialog.SetLineEditEnable(input.integer(), input.flag());
        break;
    case 5:
        dialog.SetLineEditEnable2(input.integer(), input.flag());
        break;
    case 6:
        dialog.CheckSplitIsOk(target->objectName());
        break;
    case 7:
        dialog.ShowInputErrorMsg(target, QString::fromUtf8(input.bytes(30)), input.byte());
        break;
    case 8:
        dialog.SetCurrentIndex(input.integer());
        break;
    case 9:
        dialog.OnclickedChecked(input.flag());
        break;
    case 10:
        dialog.OnclickedKcChecked(input.flag());
        break;
    case 11:
        dialog.ChangeComboboxKcBuyRise();
        break;
    case 12:
        dialog.ChangeComboboxKcSellRise();
        break;
    case 13:
        dialog.loadLanguage();
        break;
    case 14:
        dialog.ui.comboBox_system_language->setCurrentIndex(input.below(3));
        break;
    default:
        dialog.WriteAllParm();
    }
}

void someEvent(CTradeConfigWidget& dialog, const QList<QPointer<QWidget>>& widgets,
               FuzzInput& input)
{
    const int kind = input.below(12);
    QWidget* target = widgets.at(input.below(widgets.size()));
    QWidget* const focused = QApplication::focusWidget();
    // Most keys go where a keyboard's would.
    if (!target || (focused && (kind == 1 || kind == 2) && input.byte() < 200))
        target = focused ? focused : &dialog;
    switch (kind) {
    case 0:
        mouse(target, input);
        break;
    case 1:
        pressKey(target, input);
        break;
    case 2:
        type(target, input);
        break;
    case 3:
        target->setFocus(Qt::FocusReason(input.below(8)));
        break;
    case 4:
        if (auto* const combo = qobject_cast<QComboBox*>(target))
            combo->setCurrentIndex(input.below(combo->count() + 1) - 1);
        break;
    case 5:
        if (auto* const button = qobject_cast<QAbstractButton*>(target))
            button->click();
        break;
    case 6:
        callSlot(dialog, target, input);
        break;
    case 7:
        dialog.resize(input.below(2000), input.below(1500));
        break;
    case 8:
        dialog.setVisible(input.flag());
        break;
    case 9: {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QApplication::sendEvent(target, &event);
        break;
    }
    case 10:
        QApplication::clipboard()->setText(QString::fromUtf8(input.bytes(12)));
        break;
    default:
        QApplication::processEvents();
    }
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

bool isAnyRed(const CTradeConfigWidget& dialog)
{
    return dialog.inputValidity.values().contains(false);
}

/// Whether a text that is edited within [0, top] or not at all may have become @p now.
bool mayBecome(int before, int now, int top) { return now == before || (now >= 0 && now <= top); }

void checkStored(const OwnedRecord& before, const TradeParm& now)
{
    const TradeParm& old = before.get();
    for (const auto flag :
         {&TradeParm::clickBookQty, &TradeParm::confirmCancel, &TradeParm::confirmOrder,
          &TradeParm::orderSuccessDialog, &TradeParm::splitEnabled, &TradeParm::starSplitEnabled})
        MUST(now.*flag == 0 || now.*flag == 1);
    for (const auto quantity :
         {&TradeParm::splitBaseQty, &TradeParm::splitMaxQty, &TradeParm::splitMinQty,
          &TradeParm::splitStepQty, &TradeParm::starSplitBaseQty, &TradeParm::starSplitMaxQty,
          &TradeParm::starSplitMinQty, &TradeParm::starSplitStepQty})
        MUST(mayBecome(old.*quantity, now.*quantity, largestQuantity));
    MUST(mayBecome(old.lockMinutes, now.lockMinutes, 1000));
    for (int i = 0; i < 3; ++i) {
        MUST(mayBecome(old.starBuyRiseChoices[i], now.starBuyRiseChoices[i], 100));
        MUST(mayBecome(old.starSellRiseChoices[i], now.starSellRiseChoices[i], 100));
    }
    MUST(now.starBuyRiseIndex >= -1 && now.starBuyRiseIndex <= 2);
    MUST(now.starSellRiseIndex >= -1 && now.starSellRiseIndex <= 2);
    MUST(now.splitStrategy >= -1 && now.splitStrategy <= 2);
    MUST(now.starSplitStrategy >= -1 && now.starSplitStrategy <= 4);
    MUST(now.languageIndex >= -1 && now.languageIndex <= 2);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzSetup::application();
    FuzzInput input(data, size);
    writeFile(InterfaceSettings::filePath(),
              "[UI]\nlanguage=" + input.bytes(6) + "\nscale=" + QByteArray::number(input.integer())
                  + '\n');
    FakeTrade trade;
    RandomRecord::fill(trade, input);
    OwnedRecord before;
    for (const Field& field : RecordFields::all()) {
        for (int i = 0; field.kind == Kind::Integer && i < field.count; ++i)
            RecordFields::setInteger(before.get(), field, i,
                                     RecordFields::integer(trade.parm(), field, i));
    }
    const QByteArray reserved = trade.reservedBytes();
    const Answers answers(input);

    const auto dialog = std::make_unique<CTradeConfigWidget>(&trade);
    MUST(trade.saves == 0);
    MUST(!dialog->restartNeeded);
    MUST(dialog->inputValidity.isEmpty());
    dialog->show();
    QList<QPointer<QWidget>> widgets{dialog.get()};
    for (QWidget* const widget : dialog->findChildren<QWidget*>())
        widgets << widget;
    for (int events = 0; events < mostEvents && !input.isEmpty(); ++events)
        someEvent(*dialog, widgets, input);

    // A field that is left is checked, so nothing may still have the focus.
    if (QWidget* const focused = QApplication::focusWidget())
        focused->clearFocus();
    const int saves = trade.saves;
    const bool refused = isAnyRed(*dialog);
    const int language = trade.parm().languageIndex;
    dialog->WriteAllParm();
    MUST(trade.saves == saves + (refused ? 0 : 1));
    if (refused)
        MUST(trade.parm().languageIndex == language);
    if (trade.saves > 0)
        checkStored(before, trade.parm());
    MUST(trade.reservedBytes() == reserved);
    MUST(trade.foreignCalls == 0);
    MUST(trade.parm().uiPageMode == before.get().uiPageMode);
    const int shown = InterfaceSettings::languageIndex();
    MUST(shown >= 0 && shown <= 2);
    return 0;
}
