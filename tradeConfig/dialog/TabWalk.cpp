#include "tradeConfig/dialog/TabWalk.h"

#include "tradeConfig/TableLineEdit.h"

#include <QPushButton>
#include <QTableWidget>

void TabWalk::lead(const QVector<QTableWidget*>& tables, const QVector<QPushButton*>& buttons)
{
    QWidget* last = nullptr;
    for (QTableWidget* const table : tables) {
        table->setTabKeyNavigation(false);
        // A click still selects the row, and the arrow keys move the selection from there.
        table->setFocusPolicy(Qt::ClickFocus);
        const auto cells = table->findChildren<CTableLineEdit*>();
        if (!cells.isEmpty())
            last = cells.last();
    }
    // Cells are built after the form, so that they stand behind the buttons.
    for (QPushButton* const button : buttons) {
        if (last)
            QWidget::setTabOrder(last, button);
        last = button;
    }
}
