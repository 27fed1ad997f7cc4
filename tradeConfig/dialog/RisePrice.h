#pragma once

#include <cstdint>

class QComboBox;
class QLabel;
class QObject;
class QPushButton;
class QString;
class Ui_CTradeConfigWidget;
struct TradeParm;

/**
 * One STAR-board protection price: a choice of three percentages that the user may edit in
 * place. Buying and selling are two values of this type.
 */
struct RisePrice {
    using Form = Ui_CTradeConfigWidget;

    static constexpr int choiceCount = 3;

    QComboBox* Form::*combo;
    QLabel* Form::*label;
    QPushButton* Form::*editButton;
    std::int32_t TradeParm::*index;
    std::int32_t (TradeParm::*choices)[choiceCount];

    /// Appends the three percentages to the items and chooses one.
    void load(const TradeParm& parm, const Form& ui) const;

    void store(TradeParm& parm, const Form& ui) const;

    /// Lets the chosen percentage be typed, gives it the focus and returns its text.
    /// @p owner gets a validator for each editing.
    QString beginEdit(const Form& ui, QObject* owner) const;

    /// Makes @p text the chosen percentage's; does nothing while none is being edited.
    void endEdit(const Form& ui, const QString& text) const;

    static const RisePrice buy;
    static const RisePrice sell;
};
