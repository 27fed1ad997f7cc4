#pragma once

#include "client/OwnedRecord.h"
#include "client/SpokenTexts.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

/// The record as a table, one row for each element of each field.
class RecordModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { TitleColumn, NameColumn, ValueColumn, MeaningColumn, ChangeColumn, ColumnCount };
    enum Role {
        ChangedRole = Qt::UserRole,
        SearchRole ///< all that the row is found by: its texts, in every language
    };

    explicit RecordModel(QObject* parent = nullptr);

    /// Shows @p record and marks nothing.
    void show(const OwnedRecord& record);
    /// Shows @p record and marks what differs from what was shown before.
    void showChanges(const OwnedRecord& record);
    /// The same, but what is marked already stays marked. Returns how many rows differ.
    int addChanges(const OwnedRecord& record);
    /// How many rows are marked.
    int changeCount() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Row {
        QString title;
        QString name;
        QString value;
        QString meaning;
        QString shortly; ///< the value in a word
        QString search;
        QString change; ///< empty unless the row is marked
    };
    QVector<Row> rowsOf(const OwnedRecord& record) const;
    /// How a row looked before, for those of @p rows that differ from what is shown.
    int markChanges(QVector<Row>& rows) const;
    void replace(QVector<Row> rows);

    const SpokenTexts m_texts;
    QVector<Row> m_rows;
};
