#include "client/RecordFilter.h"

#include "client/RecordModel.h"

void RecordFilter::setChangedOnly(bool changedOnly)
{
    m_changedOnly = changedOnly;
    invalidateFilter();
}

bool RecordFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (m_changedOnly && !index.data(RecordModel::ChangedRole).toBool())
        return false;
    return QSortFilterProxyModel::filterAcceptsRow(row, parent);
}
