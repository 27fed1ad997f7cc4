#include "client/Screenshots.h"

#include <QCoreApplication>
#include <QDir>
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

ScreenshotResult writeScreenshots(QWidget& dialog, const QString& directory)
{
    constexpr int switchWidth = 219;
    constexpr int switchHeight = 60;
    constexpr int entryHeight = 50;

    ScreenshotResult result;
    const auto fail = [&result](const QString& reason) {
        result.failure = reason;
        return result;
    };
    if (!QDir().mkpath(directory))
        return fail(QCoreApplication::translate("Screenshots", "无法创建目录 %1").arg(directory));

    auto* const top = dialog.findChild<QStackedWidget*>(QStringLiteral("stackedWidget"));
    auto* const bar = dialog.findChild<QWidget*>(QStringLiteral("switchex_widget"));
    dialog.show();
    QCoreApplication::processEvents();
    for (int group = 0; group < int(std::size(groups)); ++group) {
        const Group& names = groups[group];
        auto* const stack = dialog.findChild<QStackedWidget*>(QLatin1String(names.stack));
        auto* const list = dialog.findChild<QWidget*>(QLatin1String(names.list));
        if (!top || !stack)
            return fail(QCoreApplication::translate("Screenshots", "设置窗口缺少 %1")
                            .arg(QLatin1String(names.stack)));
        select(top, bar, QPoint(group * switchWidth + switchWidth / 2, switchHeight / 2), group);
        for (int page = 0; page < stack->count(); ++page) {
            select(stack, list, QPoint(60, page * entryHeight + entryHeight / 2), page);
            QCoreApplication::processEvents();
            const QString file
                = QDir(directory).absoluteFilePath(QStringLiteral("%1-%2-%3.png")
                                                       .arg(QLatin1String(names.name))
                                                       .arg(page + 1)
                                                       .arg(stack->currentWidget()->objectName()));
            if (!dialog.grab().save(file, "PNG"))
                return fail(QCoreApplication::translate("Screenshots", "无法写入 %1").arg(file));
            result.files += file;
        }
    }
    return result;
}
