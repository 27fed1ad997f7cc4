#include "client/RecordFilter.h"

#include "client/RecordModel.h"

void RecordFilter::setChangedOnly(bool changedOnly)
{
    m_changedOnly = changedOnly;
    invalidateFilter();
}

void RecordFilter::setSearch(const QString& search)
{
    m_search = search;
    invalidateFilter();
}

bool RecordFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (m_changedOnly && !index.data(RecordModel::ChangedRole).toBool())
        return false;
    return index.data(RecordModel::SearchRole).toString().contains(m_search, Qt::CaseInsensitive);
}
