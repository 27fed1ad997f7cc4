#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/PartEvents.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/dialog/RisePrice.h"
#include "tradeConfig/dialog/ShortcutTable.h"
#include "tradeConfig/dialog/SplitGroup.h"
#include "tradeConfig/dialog/StyleMark.h"

#include <QDebug>
#include <QEvent>

#include <algorithm>

namespace {

// Where a tip stands beside its field. The field's position is relative to its own page while
// the tip's is relative to the dialog; these offsets stand for the difference.
constexpr int tipOffsetX = 130;
constexpr int tipOffsetY = 62;

struct Tip {
    SplitRules::Verdict verdict;
    const char* text;
    int width;
};

constexpr Tip tips[] = {
    {SplitRules::Verdict::BelowMinimum, QT_TRANSLATE_NOOP("CTradeConfigWidget", "不能小于100股"),
     160},
    {SplitRules::Verdict::UpperTooSmall,
     QT_TRANSLATE_NOOP("CTradeConfigWidget", "上限不能小于下限或递减数量"), 200},
    {SplitRules::Verdict::AboveUpper, QT_TRANSLATE_NOOP("CTradeConfigWidget", "不能大于上限"), 160},
};

// Why the field is red, for those who come back to it later and do not see it.
void explain(QLineEdit& field, const QString& reason)
{
    if (field.accessibleDescription() != reason)
        field.setAccessibleDescription(reason);
}

const SplitGroup* const splitGroups[] = {&SplitGroup::stock, &SplitGroup::star};

} // namespace

// Order splitting

void CTradeConfigWidget::OnclickedChecked(bool checked)
{
    SplitGroup::stock.setInputsEnabled(ui, checked);
}

void CTradeConfigWidget::OnclickedKcChecked(bool checked)
{
    SplitGroup::star.setInputsEnabled(ui, checked);
}

void CTradeConfigWidget::SelectFcSplit(int index) { SplitGroup::stock.select(ui, index); }

void CTradeConfigWidget::SelectFcKcSplit(int index) { SplitGroup::star.select(ui, index); }

bool CTradeConfigWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        focusLeft(watched);
    return QWidget::eventFilter(watched, event);
}

void CTradeConfigWidget::focusLeft(QObject* watched)
{
    if (watched == ui.comboBox_trade_kc_buyRise) {
        RisePrice::buy.endEdit(ui, starBuyRiseText);
        return;
    }
    if (watched == ui.comboBox_trade_kc_sellRise) {
        RisePrice::sell.endEdit(ui, starSellRiseText);
        return;
    }
    for (const SplitGroup* const group : splitGroups) {
        for (const SplitRules::Field field : SplitRules::allFields) {
            if (watched == group->edit(ui, field)) {
                checkSplitField(*group, field);
                return;
            }
        }
    }
}

void CTradeConfigWidget::checkSplitField(const SplitGroup& group, SplitRules::Field field)
{
    QLineEdit& edit = *group.edit(ui, field);
    const SplitRules::Verdict verdict = SplitRules::check(field, group.quantities(ui));
    const bool accepted = verdict == SplitRules::Verdict::Accepted;
    StyleMark::set(edit, accepted);
    if (accepted) {
        explain(edit, QString());
        CheckSplitIsOk(edit.objectName());
    } else {
        const auto* const tip
            = std::find_if(std::begin(tips), std::end(tips), [verdict](const Tip& candidate) {
                  return candidate.verdict == verdict;
              });
        explain(edit, tr(tip->text));
        ShowInputErrorMsg(&edit, tr(tip->text), tip->width);
    }
    if (verdict == SplitRules::Verdict::UpperTooSmall) {
        // The conflicting values must be seen, whatever the strategy shows.
        group.setLowerLimitVisible(ui, true);
        group.setDecrementVisible(ui, true);
    }
    inputValidity[edit.objectName()] = accepted;
}

void CTradeConfigWidget::CheckSplitIsOk(QString name)
{
    for (const SplitGroup* const group : splitGroups) {
        for (const SplitRules::Field passed : SplitRules::allFields) {
            if (group->edit(ui, passed)->objectName() != name)
                continue;
            const SplitRules::Quantities quantities = group->quantities(ui);
            for (const SplitRules::Field companion : SplitRules::allFields) {
                QLineEdit& edit = *group->edit(ui, companion);
                const auto entry = inputValidity.find(edit.objectName());
                if (entry == inputValidity.end() || entry.value()
                    || !SplitRules::clearsCompanion(passed, companion, quantities))
                    continue;
                StyleMark::set(edit, true);
                explain(edit, QString());
                entry.value() = true;
            }
            return;
        }
    }
}

void CTradeConfigWidget::ShowInputErrorMsg(QObject* watched, QString text, int width)
{
    const auto* const input = qobject_cast<QWidget*>(watched);
    if (!input)
        return;
    tipLabel->hide();
    tipLabel->SetMessageLabel(text);
    const QRect field = input->geometry();
    tipLabel->setGeometry(field.x() + field.width() + tipOffsetX, field.y() + tipOffsetY, width,
                          field.height());
    tipLabel->show();
    PartEvents::tell(*tipLabel, QAccessible::Alert, PartEvents::noPart);
    tipLabel->SetAutoHide();
}

// STAR-board protection prices

void CTradeConfigWidget::ChangeComboboxKcBuyRise()
{
    starBuyRiseText = RisePrice::buy.beginEdit(ui, this);
}

void CTradeConfigWidget::ChangeComboboxKcSellRise()
{
    starSellRiseText = RisePrice::sell.beginEdit(ui, this);
}

void CTradeConfigWidget::ChangeComboboxKcBuyRiseText(QString text) { starBuyRiseText = text; }

void CTradeConfigWidget::ChangeComboboxKcSellRiseText(QString text) { starSellRiseText = text; }

// Hotkey tables

void CTradeConfigWidget::CellEditFinished(int row, QString text)
{
    keyCaptured(ShortcutTable::stock, stockShortcutTexts, row, text);
}

void CTradeConfigWidget::CellEditFinished2(int row, QString text)
{
    keyCaptured(ShortcutTable::credit, creditShortcutTexts, row, text);
}

void CTradeConfigWidget::SetLineEditEnable(int row, bool enable)
{
    ShortcutTable::stock.setOthersEnabled(ui, row, enable);
}

void CTradeConfigWidget::SetLineEditEnable2(int row, bool enable)
{
    ShortcutTable::credit.setOthersEnabled(ui, row, enable);
}

void CTradeConfigWidget::keyCaptured(const ShortcutTable& table, QStringList& texts, int row,
                                     const QString& text)
{
    if (row < 0 || row >= (ui.*table.table)->rowCount())
        return;
    const bool listed = row < texts.size();
    if (table.ignoresUnchangedKey && listed && texts.at(row) == text)
        return;

    const ShortcutTable::Check check = table.check(texts, row, text);
    if (listed && check.verdict != ShortcutTable::Verdict::GlobalHotkey)
        texts[row] = text;
    QLineEdit* const sending = qobject_cast<CTableLineEdit*>(sender());
    table.showVerdict(ui, sending ? sending : table.editor(ui, row), row, text, check);
    if (check.verdict == ShortcutTable::Verdict::Emptied)
        return;

    const bool accepted = check.verdict == ShortcutTable::Verdict::Accepted;
    table.setOthersEnabled(ui, row, accepted);
    inputValidity[QLatin1String(table.validityKey)] = accepted;
    if (table.changeLog)
        qDebug() << table.changeLog << texts;
}
