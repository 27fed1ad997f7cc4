#pragma once

#include "appearance/Pictures.h"

#include <QMainWindow>
#include <QVector>

class QMenu;
class QStackedWidget;

/**
 * Shows every widget of the module's kit in every mode, orientation and state, one page for each
 * kind of widget. Most of them stand still in the state that their caption names.
 */
class Gallery : public QMainWindow {
    Q_OBJECT

public:
    /// One page: its name in file names, its title, and what it shows.
    struct Page {
        QString name;
        QString title;
        QWidget* content;
    };

    explicit Gallery(QWidget* parent = nullptr);

    const QVector<Page>& pages() const { return m_pages; }

    /// Where skins are listed; empty until somebody fills it.
    QMenu* skinMenu() const { return m_skinMenu; }

    /// Writes every page in its full size as a PNG file into @p directory, which is created if
    /// it is missing. Shows the window meanwhile.
    Pictures writeScreenshots(const QString& directory);

private:
    QVector<Page> m_pages;
    QStackedWidget* m_stack;
    QMenu* m_skinMenu;
};
