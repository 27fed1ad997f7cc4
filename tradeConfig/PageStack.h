#pragma once

#include <QStackedWidget>

/**
 * A stacked widget under a name that makes the form cheap.
 *
 * The form compiler creates the pages of a QStackedWidget without a parent and moves them under
 * the stack afterwards; every font and style then reaches all their children as a change. For a
 * promoted class it creates each page under its stack at once, and the class adds it.
 *
 * The form says that the class extends QComboBox. The compiler takes from that alone that
 * "currentIndex" must wait until the pages exist; nothing of a combo box comes into the code.
 */
using PageStack = QStackedWidget;
