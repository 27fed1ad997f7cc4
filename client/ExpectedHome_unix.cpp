#include "client/ExpectedHome.h"
#include "client/Identity.h"

#include <QDir>

QString ExpectedHome::path()
{
    QByteArray home = qgetenv("HOME");
    if (home.isEmpty())
        return QDir::currentPath();
    while (home.endsWith('/'))
        home.chop(1);
    return QString::fromUtf8(home) + QStringLiteral("/.") + QLatin1String(Identity::identifier);
}
