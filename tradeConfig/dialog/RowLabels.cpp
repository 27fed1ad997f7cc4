#include "tradeConfig/dialog/RowLabels.h"

#include <QLabel>
#include <QStyle>
#include <QTextLayout>

namespace {

constexpr int rowHeight = 16;
constexpr ushort firstIdeograph = 0x2e80; // with the radicals before and the punctuation after it

/// How far the box of a line reaches over the lower edge of a row in which its capitals and
/// ideographs are centred; 0 if it fits the row as it is.
int overhang(const QFont& font)
{
    QTextLayout sample(QStringLiteral("中"), font);
    sample.beginLayout();
    const QTextLine line = sample.createLine();
    sample.endLayout();
    if (line.height() <= rowHeight)
        return 0;
    const int baseline = (rowHeight + QFontMetrics(font).capHeight()) / 2;
    return baseline + qRound(line.descent()) - rowHeight;
}

bool isChinese(const QString& text) { return text.at(0).unicode() >= firstIdeograph; }

} // namespace

void RowLabels::fit(std::initializer_list<const QWidget*> pages)
{
    const QWidget& first = **pages.begin();
    if (first.style()->property("centresGlyphs").toBool())
        return;
    const int below = overhang(first.font());
    if (below == 0)
        return;
    for (const QWidget* const page : pages) {
        for (QObject* const child : page->children()) {
            auto* const label = qobject_cast<QLabel*>(child);
            if (!label || label->height() != rowHeight)
                continue;
            // Letters reach farther down than ideographs, and not as far up.
            const int margin = isChinese(label->text()) ? -below : 1 - below;
            label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
            // The attribute raises negative margins to zero.
            label->setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
            label->setContentsMargins(0, -below, 0, margin);
        }
    }
}
