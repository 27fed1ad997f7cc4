#include "tradeConfig/WrapLabel.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <QtMath>

namespace {

// The text of @p label in lines of at most @p width pixels, words broken where they must be.
class BrokenText {
public:
    BrokenText(const QLabel& label, int width)
    {
        QTextOption option(Qt::AlignLeft);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_document.setDocumentMargin(0);
        m_document.setDefaultFont(label.font());
        m_document.setDefaultTextOption(option);
        m_document.setPlainText(label.text());
        m_document.setTextWidth(width);
    }

    int height() const { return qCeil(m_document.size().height()); }

    void draw(QPainter& painter, const QColor& colour)
    {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, colour);
        m_document.documentLayout()->draw(&painter, context);
    }

private:
    QTextDocument m_document;
};

} // namespace

CWrapLabel::CWrapLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

int CWrapLabel::widestLine() const { return 80 * fontMetrics().averageCharWidth(); }

bool CWrapLabel::hasWordTooWide() const { return QLabel::sizeHint().width() > widestLine(); }

QSize CWrapLabel::sizeHint() const
{
    if (!hasWordTooWide())
        return QLabel::sizeHint();
    return {widestLine(), heightForWidth(widestLine())};
}

QSize CWrapLabel::minimumSizeHint() const
{
    return hasWordTooWide() ? sizeHint() : QLabel::minimumSizeHint();
}

int CWrapLabel::heightForWidth(int width) const
{
    return hasWordTooWide() ? BrokenText(*this, width).height() : QLabel::heightForWidth(width);
}

void CWrapLabel::paintEvent(QPaintEvent* event)
{
    if (!hasWordTooWide()) {
        QLabel::paintEvent(event);
        return;
    }
    BrokenText text(*this, width());
    QPainter painter(this);
    painter.translate(0, qMax(0, (height() - text.height()) / 2));
    text.draw(painter, palette().color(foregroundRole()));
}
