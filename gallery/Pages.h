#pragma once

class QWidget;

/// What the pages of the gallery show. The caller owns what it gets.
namespace GalleryPages {

QWidget* horizontalBars();
QWidget* verticalBars();
QWidget* navigationLists();
QWidget* captionBars();
QWidget* imageButtons();
QWidget* messageBoxes();
QWidget* hints();
QWidget* icons();

} // namespace GalleryPages
