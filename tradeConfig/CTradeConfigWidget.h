#pragma once

#include "tradeConfig/dialog/SplitRules.h"

#include "ui_CTradeConfigWidget.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

class CSwitchEx;
class CTipLabel;
struct ShortcutTable;
struct SplitGroup;

namespace KivoTrade {
class ITrade;
}

/**
 * The settings dialog: system, trade and shortcut settings of the trading client.
 *
 * Built complete, every control already showing the trading core's record. While the user
 * edits, fields are checked and marked; confirming is refused while any mark is red, otherwise
 * every control is written back, the record committed once and the dialog closed. The interface
 * scale and language live in a settings file instead and lead to an offer to restart.
 *
 * The host owns the dialog and deletes it; closing does not. GUI thread only.
 */
class CTradeConfigWidget : public QWidget {
    Q_OBJECT

public:
    /// @p trade must not be null and must outlive the dialog; it is not owned.
    explicit CTradeConfigWidget(KivoTrade::ITrade* trade, QWidget* parent = nullptr);
    ~CTradeConfigWidget() override;

    /// Builds navigation, tables, validators, choices and tip. Once, while constructing.
    void InitWidget();

    /// Makes every signal connection. Once, while constructing.
    void InitConnect();

    /// Appends the items of every fixed choice. Once, while constructing.
    void InitCombobox();

    void InitStockTable();
    void InitCreditTable();
    void InitWholeTable();

    /// Fills every control from the record. Once, while constructing.
    void ReadAllParm();

    /// Enables or disables the key cells of every row but @p row, in the stock table.
    void SetLineEditEnable(int row, bool enable);
    /// The same in the credit table.
    void SetLineEditEnable2(int row, bool enable);

    /// Checks a field, or ends the editing of a protection price, when it loses the focus.
    /// Never consumes an event.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Confirm: saves everything and closes, or says that a marked value must be mended first.
    void WriteAllParm();

    /// Closes the parent widget if there is one, otherwise this dialog.
    void CloseDlg();

    /// Shows a page of the top-level stack: 0 system, 1 trade, 2 shortcuts.
    void SetCurrentIndex(int index);

    /// Sets the language combo from the settings file without reporting a change.
    void loadLanguage();

    /// Writes language and scale to the settings file.
    void saveUISettings();

    /// Asks whether to restart now; on Yes starts the restarter and asks the application to
    /// quit, which takes effect in the event loop.
    void restart();

    /// Shows @p text beside @p watched for a while; @p width is the tip's, in pixels.
    void ShowInputErrorMsg(QObject* watched, QString text, int width);

    /// Clears the red marks that the quantity in the field @p name, just accepted, makes moot.
    void CheckSplitIsOk(QString name);

    /// Enables or disables the five inputs of stock order splitting.
    void OnclickedChecked(bool checked);
    /// The same for STAR-board splitting.
    void OnclickedKcChecked(bool checked);

    /// Shows the rows that the stock splitting strategy @p index needs; another index, no change.
    void SelectFcSplit(int index);
    /// The same for the STAR strategies, of which 0 to 2 also write base quantity and upper limit.
    void SelectFcKcSplit(int index);

    /// Lets the buy protection price be edited until it loses the focus, and gives it the focus.
    void ChangeComboboxKcBuyRise();
    /// The same for the sell protection price.
    void ChangeComboboxKcSellRise();
    /// Keeps @p text as the buy protection price being edited.
    void ChangeComboboxKcBuyRiseText(QString text);
    /// The same for the sell protection price.
    void ChangeComboboxKcSellRiseText(QString text);

    /// A key was captured in the stock table.
    void CellEditFinished(int row, QString text);
    /// A key was captured in the credit table.
    void CellEditFinished2(int row, QString text);

    /// The language was chosen: stores @p index in the record, without committing it, writes the
    /// settings file and asks in a modal box whether to restart.
    void languageChanged(int index);

protected:
    Ui_CTradeConfigWidget ui;
    KivoTrade::ITrade* m_pTrade = nullptr;
    QStringList stockShortcutTexts; ///< by table row
    QStringList creditShortcutTexts; ///< by table row
    QString starBuyRiseText; ///< being edited in the buy protection price
    QString starSellRiseText; ///< being edited in the sell protection price
    /// Last verdict on each checked input, by object name or table key; false refuses saving.
    QMap<QString, bool> inputValidity;
    CTipLabel* tipLabel = nullptr;
    CSwitchEx* switchBar = nullptr;
    bool restartNeeded = false; ///< the scale was edited

private:
    /// The form alone.
    explicit CTradeConfigWidget(QWidget* parent);

    void initSwitchBar();
    void initValidators();
    void initKeyboardAndWheel();
    bool everyInputIsValid();
    void focusLeft(QObject* watched);
    void checkSplitField(const SplitGroup& group, SplitRules::Field field);
    void keyCaptured(const ShortcutTable& table, QStringList& texts, int row, const QString& text);
};
