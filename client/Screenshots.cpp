#include "client/Screenshots.h"

#include <QCoreApplication>
#include <QMouseEvent>
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

void click(QWidget* widget, const QPoint& position)
{
    if (!widget)
        return;
    const QPoint global = widget->mapToGlobal(position);
    QMouseEvent press(QEvent::MouseButtonPress, position, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, position, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &press);
    QCoreApplication::sendEvent(widget, &release);
    QCoreApplication::sendEvent(widget, &leave);
}

// By the list, as a user would, so that it shows its selection; pages that no list leads to
// are turned up directly.
void select(QStackedWidget* stack, QWidget* list, const QPoint& position, int index)
{
    click(list, position);
    if (stack->currentIndex() != index)
        stack->setCurrentIndex(index);
}

} // namespace

Pictures writeScreenshots(QWidget& dialog, const QString& directory)
{
    constexpr int switchWidth = 219;
    constexpr int switchHeight = 60;
    constexpr int entryHeight = 50;

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
        select(top, bar, QPoint(group * switchWidth + switchWidth / 2, switchHeight / 2), group);
        for (int page = 0; page < stack->count(); ++page) {
            select(stack, list, QPoint(60, page * entryHeight + entryHeight / 2), page);
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
