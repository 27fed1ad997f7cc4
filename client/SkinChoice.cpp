#include "client/SkinChoice.h"

#include "client/DataDirectory.h"

#include <QSettings>

namespace {

QString skinKey() { return QStringLiteral("View/skin"); }

} // namespace

QString SkinChoice::read(const DataDirectory& directory)
{
    return QSettings(directory.clientFile(), QSettings::IniFormat).value(skinKey()).toString();
}

void SkinChoice::keep(const DataDirectory& directory, const QString& name)
{
    // Made here, the interface settings come along.
    if (directory.makeConfigDirectory())
        QSettings(directory.clientFile(), QSettings::IniFormat).setValue(skinKey(), name);
}
