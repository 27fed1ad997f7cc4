#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QTableView;
class RecordFilter;
class RecordModel;

/// The record as it stands, with what was changed last, and a search in it.
class RecordView : public QWidget {
    Q_OBJECT

public:
    explicit RecordView(QWidget* parent = nullptr);

    RecordModel* model() const { return m_model; }
    /// What was done last, in a sentence.
    void setSummary(const QString& summary);

    QTableView* table() const { return m_table; }
    QLineEdit* search() const { return m_search; }
    QCheckBox* changedOnly() const { return m_changedOnly; }

private:
    QTableView* makeTable();
    void copyRows() const;

    RecordModel* m_model;
    RecordFilter* m_filter;
    QLineEdit* m_search;
    QCheckBox* m_changedOnly;
    QLabel* m_summary;
    QTableView* m_table;
};
