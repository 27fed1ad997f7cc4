#include "client/SkinChoice.h"

#include "client/DataDirectory.h"
#include "client/PlainSettings.h"

namespace {

QString skinKey() { return QStringLiteral("View/skin"); }

} // namespace

QString SkinChoice::read(const DataDirectory& directory)
{
    return PlainSettings::value(directory.clientFile(), skinKey()).toString();
}

void SkinChoice::keep(const DataDirectory& directory, const QString& name)
{
    // Made here, the interface settings come along.
    if (directory.makeConfigDirectory())
        PlainSettings::setValue(directory.clientFile(), skinKey(), name);
}
