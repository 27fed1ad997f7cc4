#pragma once

#include <QTemporaryDir>
#include <QWidget>

/// What every benchmark program runs in.
namespace Stage {

/// A home directory of its own with the settings file in it, offscreen windows, a fixed hash
/// seed, no log output. Make it before the application.
class Environment {
public:
    Environment();

private:
    QTemporaryDir m_home;
};

/// Shows @p window and lets it paint.
void open(QWidget& window);

/// Delivers everything posted, repaints included.
void settle();

void click(QWidget& widget, QPoint at);
void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers);

/// Shows every page of a settings dialog by clicks: three groups, eight sub-pages.
/// @p seen is called after each click.
template <typename Seen> void walkPages(QWidget& dialog, Seen seen)
{
    struct Group {
        const char* list;
        int pages;
    };
    constexpr Group groups[] = {{"widget_system", 3}, {"widget_trade", 2}, {"widget_shortcut", 3}};
    auto* const bar = dialog.findChild<QWidget*>(QStringLiteral("switchex_widget"));
    int x = 100;
    for (const Group& group : groups) {
        click(*bar, QPoint(x, 30));
        x += 219;
        seen();
        auto* const list = dialog.findChild<QWidget*>(QLatin1String(group.list));
        for (int page = 0; page < group.pages; ++page) {
            click(*list, QPoint(60, 50 * page + 25));
            seen();
        }
    }
}

} // namespace Stage
