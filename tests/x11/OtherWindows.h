#pragma once

#include "x11/Xdotool.h"

#include <QRect>

// The windows of other programs, by their ids. Ids are given out anew, so a window is known by its
// title.

inline QByteArray answerOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(patience);
    return process.readAllStandardOutput().trimmed();
}

inline QByteArray xdotoolSays(const QStringList& arguments)
{
    return answerOf(QStringLiteral("xdotool"), arguments);
}

inline QByteArray activeWindow() { return xdotoolSays({QStringLiteral("getactivewindow")}); }

/// The visible ones.
inline QList<QByteArray> windowsNamed(const QString& title)
{
    QList<QByteArray> ids
        = xdotoolSays({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                       QStringLiteral("--name"), QStringLiteral("^%1$").arg(title)})
              .split('\n');
    ids.removeAll(QByteArray());
    return ids;
}

/// The only one of that title, when the user works in it; empty otherwise.
inline QByteArray activeWindowNamed(const QString& title)
{
    const QList<QByteArray> windows = windowsNamed(title);
    return windows.size() == 1 && windows.first() == activeWindow() ? windows.first()
                                                                    : QByteArray();
}

/// xdotool's own idea of a place counts the window manager's frame twice.
inline QRect geometryOf(const QByteArray& window)
{
    const QByteArray told = answerOf(QStringLiteral("xwininfo"),
                                     {QStringLiteral("-id"), QString::fromLatin1(window)});
    const auto value = [&told](const char* label) {
        const int at = told.indexOf(label);
        const QByteArray rest = at < 0 ? QByteArray() : told.mid(at + int(qstrlen(label)));
        return rest.left(rest.indexOf('\n')).trimmed().toInt();
    };
    return QRect(value("Absolute upper-left X:"), value("Absolute upper-left Y:"), value("Width:"),
                 value("Height:"));
}

inline void activate(const QByteArray& window)
{
    xdotool(
        {QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::fromLatin1(window)});
}
