#pragma once

#include <QVector>

class QPushButton;
class QTableWidget;

/// The way of Tab and Shift+Tab through the dialog: every control of the page, then the buttons.
namespace TabWalk {

/// Makes the cells of @p tables stops, in the order of their rows, after the controls of the form
/// and before @p buttons. The tables themselves are stops no longer, and let Tab out of their
/// cells. Once, when the tables are built.
void lead(const QVector<QTableWidget*>& tables, const QVector<QPushButton*>& buttons);

} // namespace TabWalk
