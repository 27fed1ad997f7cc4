#pragma once

#include "support/FakeTrade.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <functional>
#include <memory>

/**
 * The settings dialog on a stand-in core. Its record holds distinct hotkeys and zeros, and a test
 * prepares what else it needs before the dialog loads it:
 *
 *   TestDialog dialog([](FakeTrade& trade) { trade.parm().lockMinutes = 5; });
 *   QCOMPARE(dialog->ui.lineEdit_system_lockTime->text(), QStringLiteral("5"));
 *   dialog.confirm();
 *   QCOMPARE(dialog.trade.saves, 1);
 */
class TestDialog {
public:
    explicit TestDialog(const std::function<void(FakeTrade& trade)>& prepare = nullptr)
    {
        trade.setDistinctShortcuts();
        if (prepare)
            prepare(trade);
        m_dialog = std::make_unique<CTradeConfigWidget>(&trade);
    }

    /// Another dialog in place of this one, on the same core.
    void reopen()
    {
        m_dialog.reset();
        m_dialog = std::make_unique<CTradeConfigWidget>(&trade);
    }

    CTradeConfigWidget* operator->() const { return m_dialog.get(); }
    CTradeConfigWidget& operator*() const { return *m_dialog; }
    CTradeConfigWidget* get() const { return m_dialog.get(); }

    /// The control of that name, which must be there.
    template <typename Widget = QWidget> Widget& find(const char* name) const
    {
        return *m_dialog->findChild<Widget*>(QString::fromLatin1(name));
    }

    void confirm() const { m_dialog->ui.pushButton_confirm->click(); }
    /// Takes the focus out of whatever field has it.
    void leaveField() const { m_dialog->ui.pushButton_confirm->setFocus(); }

    FakeTrade trade;

private:
    std::unique_ptr<CTradeConfigWidget> m_dialog;
};
