#include "gallery/PageBuilder.h"

namespace GalleryPages {

QLabel* label(const QString& text, int pixelSize)
{
    auto* const made = new QLabel(text);
    QFont font = made->font();
    font.setPixelSize(pixelSize);
    made->setFont(font);
    return made;
}

QLabel* heading(const QString& text, int pixelSize)
{
    QLabel* const made = label(text, pixelSize);
    QFont font = made->font();
    font.setBold(true);
    made->setFont(font);
    return made;
}

QLabel* note(const QString& text)
{
    constexpr int noteSize = 12;
    return label(text, noteSize);
}

QHBoxLayout* newShelf()
{
    auto* const shelf = new QHBoxLayout;
    shelf->setSpacing(2 * gap);
    return shelf;
}

void put(QHBoxLayout* shelf, QWidget* widget, const QString& name)
{
    auto* const cell = new QVBoxLayout;
    cell->setSpacing(4);
    cell->addWidget(widget, 0, Qt::AlignLeft);
    cell->addWidget(note(name));
    cell->addStretch();
    shelf->addLayout(cell);
}

PageBuilder::PageBuilder(const QString& title, const QString& summary)
    : m_page(new QWidget)
    , m_layout(new QVBoxLayout(m_page))
{
    constexpr int margin = 24;
    constexpr int titleSize = 22;
    m_page->setAutoFillBackground(true);
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(gap);
    m_layout->addWidget(heading(title, titleSize));
    QLabel* const text = note(summary);
    text->setWordWrap(true);
    m_layout->addWidget(text);
}

void PageBuilder::section(const QString& title)
{
    m_layout->addSpacing(gap);
    m_layout->addWidget(heading(title, sectionSize));
}

QHBoxLayout* PageBuilder::shelf()
{
    QHBoxLayout* const shelf = newShelf();
    add(shelf);
    return shelf;
}

QGridLayout* PageBuilder::table()
{
    auto* const grid = new QGridLayout;
    add(grid);
    grid->setHorizontalSpacing(2 * gap);
    grid->setVerticalSpacing(gap);
    return grid;
}

QWidget* PageBuilder::finish()
{
    m_layout->addStretch();
    return m_page;
}

void PageBuilder::add(QLayout* layout)
{
    auto* const row = new QHBoxLayout;
    row->addLayout(layout);
    row->addStretch();
    m_layout->addLayout(row);
}

} // namespace GalleryPages
