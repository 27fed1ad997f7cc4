#pragma once

#include <QMenu>

class DataDirectory;

/**
 * The languages of the interface, each by its own name. A choice is stored as in the settings
 * dialog, and takes effect with the restart that is offered then.
 */
class LanguageMenu : public QMenu {
    Q_OBJECT

public:
    /// @p directory must outlive the menu.
    explicit LanguageMenu(const DataDirectory& directory, QWidget* parent = nullptr);

Q_SIGNALS:
    /// After a choice was stored, before the restart is offered. @p index is as in the record:
    /// simplified Chinese, traditional Chinese, English.
    void chosen(int index);

private:
    void markStored();
    void choose(int index);

    const DataDirectory& m_directory;
};
