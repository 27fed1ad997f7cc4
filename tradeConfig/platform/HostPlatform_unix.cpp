#include "tradeConfig/platform/HostPlatform_unix.h"

#include "tradeConfig/platform/DirectorySearch.h"
#include "tradeConfig/platform/HostPlatform.h"
#include "tradeConfig/platform/VersionNumber.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

char home_path[512];
bool init_home_path;
char disk_id_str[256];
bool init_disk_id;
char system_uuid_str[512];
bool init_system_uuid;

HostPlatform::PathState stateOf(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return HostPlatform::PathState::Missing;
    return fs::is_directory(status) ? HostPlatform::PathState::Directory
                                    : HostPlatform::PathState::InTheWay;
}

bool createDirectory(const std::string& path)
{
    std::error_code error;
    fs::create_directories(path, error);
    return !error;
}

/// The bytes of $HOME are taken as they are, whatever the locale says about file names. Empty
/// when the environment names no home directory.
std::string dataDirectory()
{
    std::string home = qgetenv("HOME").toStdString();
    if (home.empty())
        return home;
    home.erase(home.find_last_not_of('/') + 1);
    const QString identifier = HostPlatform::applicationIdentifier(
        QCoreApplication::organizationDomain(), QCoreApplication::applicationName());
    return HostPlatform::firstUsableDirectory(home + "/." + identifier.toStdString(), stateOf,
                                              createDirectory,
                                              [](const std::string& path) { return '.' + path; });
}

std::string firstLine(const std::string& file)
{
    constexpr const char* space = " \t\r\v\f";
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    line.erase(line.find_last_not_of(space) + 1);
    line.erase(0, line.find_first_not_of(space));
    return line;
}

/// Skips white space, takes a sign and stays within the range of an int, as NSString's intValue.
int leadingInt(const std::string& text)
{
    using Limits = std::numeric_limits<int>;
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, Limits::min(), Limits::max()));
}

} // namespace

QString HostPlatform::applicationIdentifier(const QString& domain, const QString& name)
{
    QStringList names = domain.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    std::reverse(names.begin(), names.end());
    names.append(name);
    return names.join(QLatin1Char('.'));
}

std::string HostPlatform::machineIdentifier(const std::string& root, const std::string& dmiName)
{
    const std::string identifier = firstLine(root + "/sys/class/dmi/id/" + dmiName);
    return identifier.empty() ? firstLine(root + "/etc/machine-id") : identifier;
}

const char* ApplicationHomePath()
{
    if (!init_home_path) {
        const std::string path = dataDirectory();
        if (!path.empty())
            path.copy(home_path, sizeof home_path);
        else if (getcwd(home_path, sizeof home_path) == nullptr)
            home_path[0] = '\0';
        init_home_path = true;
    }
    return home_path;
}

void hideWindowCaptionBar(void* /*view*/) { }

const char* GetMainExecutableVersion()
{
    // A version that did not change keeps its place, so that the caller's pointer stays good.
    static std::string version;
    const std::string current = QCoreApplication::applicationVersion().toStdString();
    if (version != current)
        version = current;
    return version.c_str();
}

int GetMainExecutableVersionNum()
{
    return HostPlatform::versionNumber(GetMainExecutableVersion(), leadingInt);
}

const char* GetDiskId()
{
    if (!init_disk_id) {
        HostPlatform::copyTerminated(disk_id_str,
                                     HostPlatform::machineIdentifier({}, "product_serial"));
        init_disk_id = true;
    }
    return disk_id_str;
}

const char* GetSystemUuid()
{
    if (!init_system_uuid) {
        HostPlatform::copyTerminated(system_uuid_str,
                                     HostPlatform::machineIdentifier({}, "product_uuid"));
        init_system_uuid = true;
    }
    return system_uuid_str;
}
