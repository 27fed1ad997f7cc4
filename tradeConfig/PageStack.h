#pragma once

#include <QStackedWidget>

/// A stacked widget under the name by which uic creates its pages in place: see where
/// CMakeLists.txt here hands the form to uic.
using PageStack = QStackedWidget;
