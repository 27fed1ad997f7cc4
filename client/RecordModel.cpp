#include "client/RecordModel.h"

#include "client/RecordFields.h"

#include <QColor>
#include <QFont>

#include <algorithm>

using RecordFields::Field;

RecordModel::RecordModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

QVector<RecordModel::Row> RecordModel::rowsOf(const OwnedRecord& record) const
{
    QVector<Row> rows;
    for (const Field& field : RecordFields::all()) {
        for (int i = 0; i < (field.isArray ? field.count : 1); ++i) {
            const TradeParm& values = record.get();
            Row row{RecordFields::title(field, i),
                    RecordFields::elementName(field, i),
                    RecordFields::displayValue(values, field, i),
                    RecordFields::meaning(values, field, i),
                    RecordFields::shortly(values, field, i),
                    QString(),
                    QString()};
            QStringList search{row.name, row.value};
            for (const RecordFields::Translate& translate : m_texts.languages())
                search << RecordFields::title(field, i, translate)
                       << RecordFields::meaning(values, field, i, translate);
            row.search = search.join(QLatin1Char('\n'));
            rows.append(row);
        }
    }
    return rows;
}

void RecordModel::show(const OwnedRecord& record) { replace(rowsOf(record)); }

int RecordModel::markChanges(QVector<Row>& rows) const
{
    int count = 0;
    for (int i = 0; i < rows.size() && i < m_rows.size(); ++i) {
        const Row& before = m_rows.at(i);
        if (before.value == rows.at(i).value)
            continue;
        rows[i].change
            = before.shortly.isEmpty() ? tr("原为空") : tr("原为 %1").arg(before.shortly);
        ++count;
    }
    return count;
}

void RecordModel::showChanges(const OwnedRecord& record)
{
    QVector<Row> rows = rowsOf(record);
    markChanges(rows);
    replace(std::move(rows));
}

int RecordModel::addChanges(const OwnedRecord& record)
{
    QVector<Row> rows = rowsOf(record);
    const int count = markChanges(rows);
    for (int i = 0; i < rows.size() && i < m_rows.size(); ++i) {
        if (rows.at(i).change.isEmpty())
            rows[i].change = m_rows.at(i).change;
    }
    replace(std::move(rows));
    return count;
}

void RecordModel::replace(QVector<Row> rows)
{
    if (rows.size() != m_rows.size()) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    m_rows = std::move(rows);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int RecordModel::changeCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row& row) { return !row.change.isEmpty(); }));
}

int RecordModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int RecordModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RecordModel::data(const QModelIndex& index, int role) const
{
    const Row& row = m_rows.at(index.row());
    const bool changed = !row.change.isEmpty();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        switch (index.column()) {
        case TitleColumn:
            return row.title;
        case NameColumn:
            return row.name;
        case ValueColumn:
            return row.value;
        case MeaningColumn:
            return row.meaning;
        case ChangeColumn:
            return row.change;
        }
        return QVariant();
    case Qt::FontRole: {
        if (!changed)
            return QVariant();
        QFont font;
        font.setBold(true);
        return font;
    }
    case Qt::BackgroundRole:
        // Translucent, so that it suits light and dark palettes.
        return changed ? QVariant(QColor(255, 176, 32, 72)) : QVariant();
    case ChangedRole:
        return changed;
    case SearchRole:
        return QString(row.search + QLatin1Char('\n') + row.change);
    }
    return QVariant();
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case TitleColumn:
        return tr("参数");
    case NameColumn:
        return tr("字段");
    case ValueColumn:
        return tr("存储值");
    case MeaningColumn:
        return tr("含义");
    case ChangeColumn:
        return tr("最近的修改");
    }
    return QVariant();
}
