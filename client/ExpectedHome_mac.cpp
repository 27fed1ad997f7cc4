#include "client/ExpectedHome.h"
#include "client/Identity.h"

#include <pwd.h>
#include <unistd.h>

QString ExpectedHome::path()
{
    // In the sandbox the home is the application's own, and the data directory itself.
    if (qEnvironmentVariableIsSet("APP_SANDBOX_CONTAINER_ID"))
        return QString::fromUtf8(qgetenv("HOME"));
    // The environment's HOME counts for nothing here.
    QByteArray home = qgetenv("CFFIXED_USER_HOME");
    const passwd* const user = home.isEmpty() ? getpwuid(geteuid()) : nullptr;
    if (user)
        home = user->pw_dir;
    return QString::fromUtf8(home) + QStringLiteral("/.") + QLatin1String(Identity::identifier);
}
