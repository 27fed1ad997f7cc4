#include "client/SettingsModule.h"

#include "client/DataDirectory.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QWidget>

#include <exception>

namespace {

// Relative to the program: the same in the build tree, in an installed tree and in a bundle.
QString ownModule()
{
    const QStringList places{QStringLiteral(CLIENT_MODULE_PLACE), QStringLiteral("../lib"),
                             QStringLiteral("../Frameworks"), QStringLiteral(".")};
    const QDir programs(QCoreApplication::applicationDirPath());
    QString first;
    for (const QString& place : places) {
        const QString candidate = QDir::cleanPath(programs.absoluteFilePath(
            place + QLatin1Char('/') + QStringLiteral(CLIENT_MODULE_FILE)));
        if (QFileInfo::exists(candidate))
            return candidate;
        if (first.isEmpty())
            first = candidate;
    }
    return first;
}

} // namespace

QString SettingsModule::load(const QString& fileName)
{
    const QString file = fileName.isEmpty() ? ownModule() : QFileInfo(fileName).absoluteFilePath();
    if (!QFileInfo::exists(file))
        return tr("无法加载设置模块 %1：文件不存在").arg(file);
    m_library.setFileName(file);
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!m_library.load())
        return tr("无法加载设置模块 %1：%2").arg(file, m_library.errorString());

    const auto resolve = [this](const char* symbol) { return m_library.resolve(symbol); };
    constexpr const char* createName = "CreateModuleWidget";
    constexpr const char* homeName = "ApplicationHomePath";
    m_create = reinterpret_cast<CreateFunction>(resolve(createName));
    m_home = reinterpret_cast<HomeFunction>(resolve(homeName));
    const char* const missing = !m_create ? createName : !m_home ? homeName : nullptr;
    if (missing)
        return tr("无法加载设置模块 %1：缺少符号 %2").arg(file, QLatin1String(missing));
    return QString();
}

QString SettingsModule::homePath() const { return DataDirectory::homeIn(m_home()); }

QWidget* SettingsModule::createDialog(KivoTrade::ITrade* trade) const
{
    try {
        return static_cast<QWidget*>(m_create(trade));
    } catch (const std::exception& error) {
        qWarning("CreateModuleWidget: %s", error.what());
        return nullptr;
    }
}
