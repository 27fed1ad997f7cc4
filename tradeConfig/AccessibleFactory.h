#pragma once

#include <QAccessible>

/// Has the toolkit make the accessible interfaces of one class of widgets.
namespace AccessibleFactory {

/// Interfaces of the class @p Interface for widgets of the class @p Widget, each when somebody asks
/// for it. A second time does nothing.
template <typename Widget, typename Interface> void install()
{
    QAccessible::installFactory(
        [](const QString& className, QObject* object) -> QAccessibleInterface* {
            if (className != QLatin1String(Widget::staticMetaObject.className()))
                return nullptr;
            auto* const widget = qobject_cast<Widget*>(object);
            return widget ? new Interface(widget) : nullptr;
        });
}

} // namespace AccessibleFactory
