#pragma once

#include <cstdint>

class QComboBox;
class QPushButton;
class Ui_CTradeConfigWidget;
struct TradeParm;

/**
 * One STAR-board protection price: a choice of three percentages that the user may edit in
 * place. Buying and selling are two values of this type.
 */
struct RisePrice {
    static constexpr int choiceCount = 3;

    QComboBox* Ui_CTradeConfigWidget::*combo;
    QPushButton* Ui_CTradeConfigWidget::*editButton;
    std::int32_t TradeParm::*index;
    std::int32_t (TradeParm::*choices)[choiceCount];

    static const RisePrice buy;
    static const RisePrice sell;
};
