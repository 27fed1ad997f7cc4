#pragma once

#include <QSortFilterProxyModel>

/// Shows only the rows that match a text, or only those that changed last.
class RecordFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void setChangedOnly(bool changedOnly);
    void setSearch(const QString& search);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool m_changedOnly = false;
    QString m_search;
};
