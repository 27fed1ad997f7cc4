#pragma once

#include <QStackedWidget>

/**
 * A stacked widget that a form can fill cheaply.
 *
 * The form compiler creates the pages of a plain QStackedWidget without a parent and moves them
 * under the stack afterwards; every font and style then reaches all their children as a change.
 * Promoted to this class (extending QWidget, adding pages by addWidget) it creates each page
 * under its stack at once. Without a meta-object of its own it is a QStackedWidget to everybody.
 */
class PageStack : public QStackedWidget {
public:
    using QStackedWidget::QStackedWidget;

    /// The index of the page to show once it has been added; the form sets it before its pages.
    void setStartPage(int index) { m_startPage = index; }

    int addWidget(QWidget* page)
    {
        const int index = QStackedWidget::addWidget(page);
        if (index == m_startPage)
            setCurrentIndex(index);
        return index;
    }

private:
    int m_startPage = 0;
};
