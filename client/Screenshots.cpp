#include "client/Screenshots.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPixmap>
#include <QStackedWidget>
#include <QWidget>

namespace {

struct Group {
    const char* name;
    const char* list; ///< the navigation list
    const char* stack; ///< the pages it selects
};

constexpr Group groups[] = {
    {"system", "widget_system", "stackedWidget_system"},
    {"trade", "widget_trade", "stackedWidget_trade"},
    {"shortcut", "widget_shortcut", "stackedWidget_shortcut"},
};

// Presses one part of a bar or a list, as a user of assistive technology does. What the parts are
// and where they lie is theirs.
void press(QWidget* widget, int part)
{
    QAccessibleInterface* const whole
        = widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
    QAccessibleInterface* const pressed = whole ? whole->child(part) : nullptr;
    QAccessibleActionInterface* const actions = pressed ? pressed->actionInterface() : nullptr;
    if (!actions)
        return;
    actions->doAction(QAccessibleActionInterface::pressAction());
    QEvent leave(QEvent::Leave); // the highlight goes with the mouse, which was never there
    QCoreApplication::sendEvent(widget, &leave);
}

// By the list, so that it shows its selection; pages that no list leads to are turned up directly.
void select(QStackedWidget* stack, QWidget* list, int index)
{
    press(list, index);
    if (stack->currentIndex() != index)
        stack->setCurrentIndex(index);
}

} // namespace

Pictures writeScreenshots(QWidget& dialog, const QString& directory)
{
    Pictures pictures(directory);
    auto* const top = dialog.findChild<QStackedWidget*>(QStringLiteral("stackedWidget"));
    auto* const bar = dialog.findChild<QWidget*>(QStringLiteral("switchex_widget"));
    dialog.show();
    QCoreApplication::processEvents();
    for (int group = 0; group < int(std::size(groups)); ++group) {
        const Group& names = groups[group];
        auto* const stack = dialog.findChild<QStackedWidget*>(QLatin1String(names.stack));
        auto* const list = dialog.findChild<QWidget*>(QLatin1String(names.list));
        if (!top || !stack) {
            pictures.failure = QCoreApplication::translate("Screenshots", "设置窗口缺少 %1")
                                   .arg(QLatin1String(names.stack));
            return pictures;
        }
        select(top, bar, group);
        for (int page = 0; page < stack->count(); ++page) {
            select(stack, list, page);
            QCoreApplication::processEvents();
            const QString name = QStringLiteral("%1-%2-%3")
                                     .arg(QLatin1String(names.name))
                                     .arg(page + 1)
                                     .arg(stack->currentWidget()->objectName());
            if (!pictures.add(name, dialog.grab()))
                return pictures;
        }
    }
    return pictures;
}
