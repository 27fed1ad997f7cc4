#pragma once

#include <QProcess>
#include <QWidget>
#include <QtTest>

/// How long the window system may take for what it is asked, in milliseconds.
constexpr int patience = 10000;

/// Lets the user at the screen do what @p arguments say, and fails the test when he cannot.
inline void xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitCode(), 0);
}

/// @p button as xdotool counts: 1 left, 2 middle, 3 right.
inline QStringList clickAt(const QWidget& widget, const QPoint& position, int button = 1)
{
    const QPoint at = widget.mapToGlobal(position);
    return {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()),
            QStringLiteral("click"), QString::number(button)};
}

inline void click(const QWidget& widget) { xdotool(clickAt(widget, widget.rect().center())); }

inline void press(const QStringList& keys) { xdotool(QStringList{QStringLiteral("key")} + keys); }

inline void activate(const QWidget& window)
{
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"),
             QString::number(window.winId())});
}
