#include "tradeConfig/dialog/ShortcutTable.h"

#include "tradeConfig/CellTableAccessible.h"
#include "tradeConfig/PartEvents.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/dialog/FormText.h"
#include "tradeConfig/dialog/StatusDelegate.h"
#include "tradeConfig/dialog/StyleMark.h"

#include "ui_CTradeConfigWidget.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace {

constexpr int rowHeight = 37;

enum Column { FunctionColumn, KeyColumn, StatusColumn, ColumnCount };

struct GlobalHotkey {
    const char* function;
    const char* key;
};

constexpr const char* normalStatus = QT_TRANSLATE_NOOP("CTradeConfigWidget", "正常");

constexpr const char* headers[ColumnCount] = {
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "功能说明"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "键位设定"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "设置说明"),
};

constexpr const char* functions[ShortcutTable::rowCount] = {
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "买入股票"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "卖出股票"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "撤单"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "查询"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "持仓"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "成交"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "委托"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "全撤"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "撤买"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "撤卖"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "撤最后"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "批量下单-买入"),
    QT_TRANSLATE_NOOP("CTradeConfigWidget", "批量下单-卖出"),
};

constexpr GlobalHotkey globalHotkeys[] = {
    {QT_TRANSLATE_NOOP("CTradeConfigWidget", "刷新"), "F5"},
    {QT_TRANSLATE_NOOP("CTradeConfigWidget", "显示/隐藏交易模块"), "F12"},
};

bool isGlobalHotkey(const QString& text)
{
    return std::any_of(
        std::begin(globalHotkeys), std::end(globalHotkeys),
        [&text](const GlobalHotkey& hotkey) { return text == QLatin1String(hotkey.key); });
}

/**
 * A column title in the colours of its table's palette.
 *
 * The header's own palette does not serve: its translucent sheet leaves the buttons' colour empty
 * there, which styles paint black, and the header is disabled, which greys its text.
 */
class HeaderItem : public QTableWidgetItem {
public:
    using QTableWidgetItem::QTableWidgetItem;

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::BackgroundRole:
            return tableWidget()->palette().brush(QPalette::Active, QPalette::Button);
        case Qt::ForegroundRole:
            return tableWidget()->palette().brush(QPalette::Active, QPalette::ButtonText);
        default:
            return QTableWidgetItem::data(role);
        }
    }
};

// The header's sheet comes before columns and rows, and each editor's sheet after it stands in
// its cell: the other way round every later change would be styled once more.
void setUp(QTableWidget& table, int rows)
{
    CellTableAccessible::serve(table);
    table.setFrameShape(QFrame::NoFrame);
    QHeaderView& header = *table.horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Stretch);
    header.setEnabled(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setStyleSheet(QStringLiteral("background-color:rgba(235,235,235,0.28);font:18px;"
                                        "QHeaderView::section{font:18px '宋体'; "
                                        "padding-left:2px; }"));
    header.setFixedHeight(rowHeight);
    table.verticalHeader()->setVisible(false);
    table.verticalHeader()->setDefaultSectionSize(rowHeight);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);

    table.setColumnCount(ColumnCount);
    for (int column = 0; column < ColumnCount; ++column)
        table.setHorizontalHeaderItem(column, new HeaderItem(FormText::tr(headers[column])));
    table.setRowCount(rows);
}

void setReadOnlyItem(QTableWidget& table, int row, int column, const char* text)
{
    auto* const item = new QTableWidgetItem(FormText::tr(text));
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    table.setItem(row, column, item);
}

QString textOf(const QTableWidgetItem* item) { return item ? item->text() : QString(); }

// The status describes the editor. Platforms differ in which of the two they pass on.
void tellStatus(QLineEdit& editor, bool accepted)
{
    PartEvents::tell(editor, QAccessible::DescriptionChanged, PartEvents::noPart);
    if (!accepted)
        PartEvents::tell(editor, QAccessible::Alert, PartEvents::noPart);
}

CTableLineEdit* addRow(QTableWidget& table, int row, const char* function)
{
    setReadOnlyItem(table, row, FunctionColumn, function);
    setReadOnlyItem(table, row, StatusColumn, normalStatus);
    auto* const editor = new CTableLineEdit(row);
    table.setCellWidget(row, KeyColumn, editor);
    editor->setStyleSheet(QStringLiteral("border:0px;"));
    return editor;
}

} // namespace

const ShortcutTable ShortcutTable::stock = {
    &Ui_CTradeConfigWidget::tableWidget_shortcut,
    "stcokShortcut", // spelled so: hosts and logs know the entry by this name
    true,
    false,
};

const ShortcutTable ShortcutTable::credit = {
    &Ui_CTradeConfigWidget::tableWidget_credit,
    "creditShortcut",
    false,
    true,
    "edit m_shortCutList2 ",
};

QVector<CTableLineEdit*> ShortcutTable::build(const Ui_CTradeConfigWidget& ui) const
{
    QTableWidget& widget = *(ui.*table);
    setUp(widget, rowCount);
    QVector<CTableLineEdit*> editors;
    editors.reserve(rowCount);
    for (int row = 0; row < rowCount; ++row)
        editors << addRow(widget, row, functions[row]);
    return editors;
}

void ShortcutTable::buildGlobal(const Ui_CTradeConfigWidget& ui)
{
    QTableWidget& widget = *ui.tableWidget_whole;
    setUp(widget, int(std::size(globalHotkeys)));
    for (int row = 0; row < int(std::size(globalHotkeys)); ++row) {
        CTableLineEdit* const editor = addRow(widget, row, globalHotkeys[row].function);
        editor->setText(QLatin1String(globalHotkeys[row].key));
        editor->setEnabled(false);
    }
}

ShortcutTable::Check ShortcutTable::check(const QStringList& texts, int row,
                                          const QString& text) const
{
    if (refusesGlobalHotkeys && isGlobalHotkey(text))
        return {Verdict::GlobalHotkey};
    if (text.isEmpty())
        return {Verdict::Emptied};
    const int duplicate = firstDuplicate(texts, row, text);
    return {duplicate < 0 ? Verdict::Accepted : Verdict::Duplicate, duplicate};
}

int ShortcutTable::firstDuplicate(const QStringList& texts, int row, const QString& text)
{
    for (int index = 0; index < texts.size(); ++index) {
        if (index != row && texts.at(index) == text)
            return index;
    }
    return -1;
}

void ShortcutTable::showVerdict(const Ui_CTradeConfigWidget& ui, QLineEdit* captor, int row,
                                const QString& text, const Check& check) const
{
    QTableWidget& widget = *(ui.*table);
    if (check.verdict == Verdict::Emptied) {
        if (captor)
            captor->setText(FormText::tr("空"));
        return;
    }

    const bool accepted = check.verdict == Verdict::Accepted;
    if (captor)
        StyleMark::set(*captor, accepted);
    QString status;
    if (accepted)
        status = FormText::tr(normalStatus);
    else if (check.verdict == Verdict::GlobalHotkey)
        //: %1 is a key such as F5
        status = FormText::tr("%1为全局快捷键！").arg(text);
    else
        //: %1 is the trading function that already has the key
        status
            = FormText::tr("与%1重复").arg(textOf(widget.item(check.duplicateRow, FunctionColumn)));
    if (QTableWidgetItem* const item = widget.item(row, StatusColumn)) {
        StatusDelegate::paintColumn(widget, StatusColumn);
        item->setForeground(QBrush(accepted ? Qt::green : Qt::red));
        const bool changed = item->text() != status;
        item->setText(status);
        if (captor && changed)
            tellStatus(*captor, accepted);
    }
}

void ShortcutTable::setOthersEnabled(const Ui_CTradeConfigWidget& ui, int row, bool enable) const
{
    const QTableWidget& widget = *(ui.*table);
    for (int other = 0; other < widget.rowCount(); ++other) {
        QLineEdit* const cell = other == row ? nullptr : editor(ui, other);
        if (cell)
            cell->setEnabled(enable);
    }
}

QLineEdit* ShortcutTable::editor(const Ui_CTradeConfigWidget& ui, int row) const
{
    return qobject_cast<QLineEdit*>((ui.*table)->cellWidget(row, KeyColumn));
}

void ShortcutTable::setCellTexts(const Ui_CTradeConfigWidget& ui, const QStringList& texts) const
{
    for (int row = 0; row < (ui.*table)->rowCount(); ++row) {
        if (QLineEdit* const cell = editor(ui, row))
            cell->setText(texts.value(row));
    }
}

QStringList ShortcutTable::cellTexts(const Ui_CTradeConfigWidget& ui) const
{
    QStringList texts;
    texts.reserve(rowCount);
    for (int row = 0; row < rowCount; ++row) {
        const QLineEdit* const cell = editor(ui, row);
        texts << (cell ? cell->text() : QString());
    }
    return texts;
}
