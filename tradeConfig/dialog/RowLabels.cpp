#include "tradeConfig/dialog/RowLabels.h"

#include <QLabel>

namespace {

constexpr int rowHeight = 16;
constexpr int spill = 4; // pixels the box is higher than the row, at each edge
constexpr int raise = 2; // pixels the line stands above the middle

} // namespace

void RowLabels::fit(const QWidget& form)
{
    const QList<QLabel*> labels = form.findChildren<QLabel*>();
    for (QLabel* const label : labels) {
        if (label->height() != rowHeight)
            continue;
        // With it every margin is at least zero.
        label->setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
        label->setContentsMargins(0, -spill - raise, 0, -spill + raise);
    }
}
