#include "client/WindowMemory.h"

#include "client/DataDirectory.h"
#include "client/PlainSettings.h"
#include "client/RecordModel.h"
#include "client/RecordView.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTableView>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int narrowestColumn = 40;
constexpr int widestColumn = 2000;

QString placeKey(const char* name) { return QStringLiteral("Window/") + QLatin1String(name); }
QString columnKey(int column) { return QStringLiteral("Columns/%1").arg(column); }
QString searchKey() { return QStringLiteral("Filter/search"); }

int area(const QRect& rect) { return rect.width() * rect.height(); }

QVector<QRect> roomsOnScreens()
{
    // A window that is not yet shown does not know its frame.
    constexpr int usualTitle = 36;
    constexpr int usualBorder = 4;
    QVector<QRect> rooms;
    for (const QScreen* const screen : QGuiApplication::screens())
        rooms
            += screen->availableGeometry().adjusted(0, 0, -usualBorder, -usualTitle - usualBorder);
    return rooms;
}

} // namespace

QRect WindowMemory::fitted(const QRect& wanted, const QVector<QRect>& screens)
{
    if (screens.isEmpty())
        return wanted;
    const QRect room = *std::max_element(screens.begin(), screens.end(),
                                         [&](const QRect& one, const QRect& two) {
                                             return area(one & wanted) < area(two & wanted);
                                         });
    QRect rect(wanted.topLeft(), wanted.size().boundedTo(room.size()));
    rect.moveRight(std::min(rect.right(), room.right()));
    rect.moveBottom(std::min(rect.bottom(), room.bottom()));
    rect.moveLeft(std::max(rect.left(), room.left()));
    rect.moveTop(std::max(rect.top(), room.top()));
    return rect;
}

void WindowMemory::restore(const DataDirectory& directory, QWidget& window, RecordView& view)
{
    const auto stored = [file = directory.windowFile()](const QString& key) {
        return PlainSettings::value(file, key);
    };
    const auto number
        = [&stored](const char* name) { return stored(placeKey(name)).toString().toInt(); };
    const QRect wanted(number("x"), number("y"), number("width"), number("height"));
    if (!wanted.isEmpty()) {
        const QRect rect = fitted(wanted, roomsOnScreens());
        window.resize(rect.size());
        window.move(rect.topLeft());
        if (number("maximized") == 1)
            window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
    // The last one takes what is left.
    for (int column = 0; column < RecordModel::ColumnCount - 1; ++column) {
        const int width = stored(columnKey(column)).toString().toInt();
        if (width > 0)
            view.table()->setColumnWidth(column, std::clamp(width, narrowestColumn, widestColumn));
    }
    const QByteArray search = stored(searchKey()).toString().toLatin1();
    view.search()->setText(QUrl::fromPercentEncoding(search));
}

void WindowMemory::keep(const DataDirectory& directory, const QWidget& window,
                        const RecordView& view)
{
    if (!directory.makeConfigDirectory())
        return;
    const bool maximized = window.isMaximized();
    const QRect rect = maximized ? window.normalGeometry() : QRect(window.pos(), window.size());
    QMap<QString, QString> values{
        {placeKey("x"), QString::number(rect.x())},
        {placeKey("y"), QString::number(rect.y())},
        {placeKey("width"), QString::number(rect.width())},
        {placeKey("height"), QString::number(rect.height())},
        {placeKey("maximized"), QString::number(maximized ? 1 : 0)},
        // Signs in it must not make an object of it.
        {searchKey(), QString::fromLatin1(QUrl::toPercentEncoding(view.search()->text()))},
    };
    for (int column = 0; column < RecordModel::ColumnCount - 1; ++column)
        values.insert(columnKey(column), QString::number(view.table()->columnWidth(column)));
    PlainSettings::setValues(directory.windowFile(), values);
}
