#include "client/RecordView.h"

#include "client/RecordFilter.h"
#include "client/RecordModel.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QLabel* makeHeading(const QString& text)
{
    auto* const heading = new QLabel(text);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

} // namespace

RecordView::RecordView(QWidget* parent)
    : QWidget(parent)
    , m_model(new RecordModel(this))
    , m_filter(new RecordFilter(this))
    , m_search(new QLineEdit)
    , m_changedOnly(new QCheckBox(tr("仅显示最近修改")))
    , m_summary(new QLabel(tr("尚未修改")))
    , m_table(makeTable())
{
    m_summary->setObjectName(QStringLiteral("label_summary"));
    m_search->setObjectName(QStringLiteral("lineEdit_search"));
    m_search->setPlaceholderText(tr("搜索参数、字段或数值"));
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(16 * fontMetrics().horizontalAdvance(QLatin1Char('M')));
    m_changedOnly->setObjectName(QStringLiteral("checkBox_changedOnly"));
    connect(m_search, &QLineEdit::textChanged, m_filter, &RecordFilter::setSearch);
    connect(m_changedOnly, &QCheckBox::toggled, m_filter, &RecordFilter::setChangedOnly);

    auto* const top = new QHBoxLayout;
    top->addWidget(makeHeading(tr("交易参数")));
    top->addSpacing(12);
    top->addWidget(m_summary, 1);
    top->addWidget(m_changedOnly);
    top->addWidget(m_search);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addLayout(top);
    layout->addWidget(m_table);
}

QTableView* RecordView::makeTable()
{
    auto* const table = new QTableView;
    m_filter->setSourceModel(m_model); // before its columns get their widths
    table->setModel(m_filter);
    table->setObjectName(QStringLiteral("tableView_record"));
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 10);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setStretchLastSection(true);
    const int em = table->fontMetrics().horizontalAdvance(QLatin1Char('M'));
    constexpr int columnWidths[] = {17, 14, 7, 14};
    for (int column = 0; column < RecordModel::ChangeColumn; ++column)
        table->setColumnWidth(column, columnWidths[column] * em);
    auto* const copy = new QAction(tr("复制(&C)"), table);
    copy->setObjectName(QStringLiteral("action_copyRows"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &RecordView::copyRows);
    table->addAction(copy);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    return table;
}

// A line for each, with tabs, as a spreadsheet takes them.
void RecordView::copyRows() const
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex& row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < RecordModel::ColumnCount; ++column)
            cells += row.siblingAtColumn(column).data().toString();
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void RecordView::setSummary(const QString& summary) { m_summary->setText(summary); }
