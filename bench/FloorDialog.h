#pragma once

#include "bench/FloorKit.h"
#include "tradeConfig/ITrade.h"

#include <QLabel>
#include <QWidget>

#include <memory>

class Ui_FloorForm;

/**
 * The least that looks and is wired like the settings dialog: the same form, items, sheets,
 * validators, filters, connections and texts, set by straight-line code in the cheapest order
 * known, with no logic behind them.
 */
class FloorDialog : public QWidget {
    Q_OBJECT

public:
    explicit FloorDialog(KivoTrade::ITrade* trade);
    ~FloorDialog() override;

    void showGroup(int index);

    /// Reads every control and writes the record, commits it and closes.
    void confirm();

    /// Key capture in the stock table: shows the key, searches, marks.
    void captureStockKey(int row, const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Table {
        FloorKeyEdit* editors[13];
    };

    void buildNavigation(const TradeParm& parm);
    void buildTables(const TradeParm& parm);
    void fillChoices();
    void fillValues(const TradeParm& parm);
    void setValidators();
    void connectAll();
    void guideKeyboardAndWheel();
    void storeKeys(TradeParm& parm) const;

    std::unique_ptr<Ui_FloorForm> m_form;
    KivoTrade::ITrade* m_trade;
    FloorBar* m_bar = nullptr;
    QLabel* m_tip = nullptr;
    Table m_stock;
    Table m_credit;
    FloorKeyEdit* m_global[2];
    QStringList m_stockTexts;
    bool m_stockAccepted = true;
    bool m_scaleEdited = false;
    QString m_buyRise;
    QString m_sellRise;
};
