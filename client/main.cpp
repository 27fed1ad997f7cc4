#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "client/ClientOptions.h"
#include "client/DataDirectory.h"
#include "client/Instance.h"
#include "client/InterfaceScale.h"
#include "client/MainWindow.h"
#include "client/Screenshots.h"
#include "client/SettingsModule.h"
#include "client/SkinChoice.h"
#include "client/StartSettings.h"
#include "client/TradeCore.h"
#include "gallery/Gallery.h"
#include "libskin/SkinLibrary.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTextCodec>

#include <cstdio>
#include <memory>

namespace {

// The context of this file's texts.
struct Client {
    Q_DECLARE_TR_FUNCTIONS(Client)
};

void setIdentity()
{
    QCoreApplication::setOrganizationDomain(QStringLiteral("kivotrade.com"));
    QCoreApplication::setApplicationName(QStringLiteral("tradeclient"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CLIENT_VERSION));
}

// A locale without Chinese would turn key names and paths into question marks.
void ensureEncoding()
{
    const QTextCodec* const codec = QTextCodec::codecForLocale();
    if (!codec || !codec->canEncode(QStringLiteral("买入")))
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

bool platformShowsWindows()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

// To the standard error always, in a box too when somebody can see it.
void tell(QMessageBox::Icon icon, const QString& message)
{
    std::fprintf(stderr, "tradeclient: %s\n", qPrintable(message));
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()) || !platformShowsWindows())
        return;
    QMessageBox box(icon, Client::tr("交易客户端"), message);
    box.exec();
}

int fail(const QString& message)
{
    tell(QMessageBox::Critical, message);
    return EXIT_FAILURE;
}

// The skin that the user asks for, or the one that was last chosen. False if the former cannot be
// used; the latter may be gone.
bool loadSkin(const QString& asked, const QString& chosen)
{
    CorvelSkin::SkinLibrary* const library = CorvelSkin::SkinLibrary::instance();
    if (!asked.isEmpty())
        return library->load(asked);
    if (library->names().contains(chosen))
        library->load(chosen);
    return true;
}

int tellPictures(const Pictures& pictures)
{
    for (const QString& file : pictures.files)
        std::printf("%s\n", qPrintable(file));
    return pictures.failure.isEmpty() ? EXIT_SUCCESS : fail(pictures.failure);
}

// The data directory as the module sees it; when that one failed, as the program's own does, if
// there is one: what failed is told in the user's language. Empty if nobody knows.
QString homeOf(const SettingsModule& module, const QString& moduleFailure)
{
    SettingsModule own;
    if (!moduleFailure.isEmpty() && !own.load().isEmpty())
        return QString();
    const QString home = (moduleFailure.isEmpty() ? module : own).homePath();
    // The question has made the directory. Whoever only asks for help leaves nothing behind; a
    // directory that holds something stays.
    QDir().rmdir(home);
    return home;
}

int printRecord(const DataDirectory& directory)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    if (!report.isClean())
        tell(QMessageBox::Warning, report.message());
    const QByteArray json = RecordStore::toJson(core.record());
    return std::fwrite(json.constData(), 1, size_t(json.size()), stdout) == size_t(json.size())
            && std::fflush(stdout) == 0
        ? EXIT_SUCCESS
        : EXIT_FAILURE;
}

int writePages(const SettingsModule& module, const DataDirectory& directory, const QString& target)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    if (!report.isClean())
        tell(QMessageBox::Warning, report.message());
    const std::unique_ptr<QWidget> dialog(module.createDialog(&core));
    if (!dialog)
        return fail(Client::tr("设置模块 %1 无法创建设置窗口").arg(module.fileName()));
    return tellPictures(writeScreenshots(*dialog, target));
}

int runGallery(SkinSwitcher& skins, const QString& target)
{
    Gallery gallery;
    if (!target.isEmpty())
        return tellPictures(gallery.writeScreenshots(target));
    skins.fill(gallery.skinMenu());
    gallery.show();
    return QCoreApplication::exec();
}

int runClient(const SettingsModule& module, const DataDirectory& directory, SkinSwitcher& skins,
              const QStringList& arguments)
{
    Instance instance(directory);
    const QString taken = instance.claim();
    if (!taken.isEmpty())
        return fail(taken);
    for (const QString& trouble :
         {directory.makeConfigDirectory()
              ? QString()
              : Client::tr("无法创建目录 %1").arg(directory.configDirectory()),
          instance.writeStart(QDir::currentPath(), QCoreApplication::applicationFilePath(),
                              arguments),
          instance.installRestarter(QCoreApplication::applicationDirPath()
                                    + QStringLiteral("/restart"))}) {
        if (!trouble.isEmpty())
            tell(QMessageBox::Warning, trouble);
    }

    TradeCore core(directory);
    core.store().removeLeftovers();
    const RecordStore::LoadReport report = core.load();
    int status;
    {
        MainWindow window(module, core, directory);
        skins.fill(window.skinMenu());
        window.show();
        if (!report.isClean())
            tell(QMessageBox::Warning, report.message());
        status = QCoreApplication::exec();
    }
    const QString failure = core.storeIfChanged();
    return failure.isEmpty() ? status : fail(failure);
}

} // namespace

int main(int argc, char** argv)
{
    setIdentity();
    ensureEncoding();

    // Scale and language must be known before the interface exists, and with them the arguments,
    // the module and the data directory: a first application object without an interface finds
    // them.
    ClientOptions options;
    SettingsModule module;
    QString moduleFailure;
    QStringList arguments;
    QString home;
    StartSettings settings;
    {
        QCoreApplication early(argc, argv);
        arguments = QCoreApplication::arguments().mid(1);
        const QString moduleFile = ClientOptions::moduleFile();
        moduleFailure = module.load(moduleFile);
        home = homeOf(module, moduleFailure);
        if (!home.isEmpty()) {
            settings = StartSettings::read(DataDirectory(home));
            settings.installTranslations(&early);
        }

        options = ClientOptions::parse();
        if (!moduleFailure.isEmpty())
            moduleFailure = module.load(moduleFile); // why, in the user's language
        const bool wantsPictures = !options.screenshotDirectory.isEmpty();
        const bool hasDisplay = CLIENT_SYSTEM_HAS_DISPLAY || qEnvironmentVariableIsSet("DISPLAY")
            || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
        if (!moduleFailure.isEmpty() && (options.printRecord || wantsPictures || !hasDisplay))
            return fail(moduleFailure);
        if (options.printRecord)
            return printRecord(DataDirectory(home));
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            if (wantsPictures)
                qputenv("QT_QPA_PLATFORM", "offscreen");
            else if (!hasDisplay)
                return fail(
                    Client::tr("没有可用的显示。可用 --screenshots 将设置窗口保存为图片。"));
        }
    }

    const DataDirectory directory(home);
    auto scale = std::make_unique<InterfaceScale>(options.scalePercent > 0 ? options.scalePercent
                                                                           : settings.scalePercent);
    QApplication application(argc, argv);
    scale.reset();
    settings.installTranslations(&application);

    if (!moduleFailure.isEmpty())
        return fail(moduleFailure);

    QApplication::setStyle(new SkinStyle);
    SkinSwitcher skins;
    QObject::connect(&skins, &SkinSwitcher::chosen,
                     [&directory](const QString& name) { SkinChoice::keep(directory, name); });
    if (!loadSkin(options.skin, SkinChoice::read(directory)))
        tell(QMessageBox::Warning,
             Client::tr("无法使用皮肤 %1，已改用内置的浅色皮肤。").arg(options.skin));
    if (options.gallery)
        return runGallery(skins, options.screenshotDirectory);
    if (!options.screenshotDirectory.isEmpty())
        return writePages(module, directory, options.screenshotDirectory);
    return runClient(module, directory, skins, arguments);
}
