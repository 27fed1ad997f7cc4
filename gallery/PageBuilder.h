#pragma once

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

/// The context of the texts of all pages.
struct GalleryText {
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

namespace GalleryPages {

// In pixels, as the skins' fonts are.
constexpr int gap = 12;
constexpr int textSize = 13;
constexpr int sectionSize = 15;

QLabel* label(const QString& text, int pixelSize);
QLabel* heading(const QString& text, int pixelSize);
QLabel* note(const QString& text);

QHBoxLayout* newShelf();
/// Adds a widget with its name under it at the end of a shelf.
void put(QHBoxLayout* shelf, QWidget* widget, const QString& name);

/// A page grows downwards: a title, then sections of shelves and tables.
class PageBuilder {
public:
    PageBuilder(const QString& title, const QString& summary);

    void section(const QString& title);
    QHBoxLayout* shelf();
    QGridLayout* table();

    /// The page, which is the caller's from here on.
    QWidget* finish();

private:
    void add(QLayout* layout);

    QWidget* m_page;
    QVBoxLayout* m_layout;
};

} // namespace GalleryPages
