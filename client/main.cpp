#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "client/ClientOptions.h"
#include "client/DataDirectory.h"
#include "client/ExpectedHome.h"
#include "client/FrontRequests.h"
#include "client/Identity.h"
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
    QCoreApplication::setOrganizationDomain(QLatin1String(Identity::domain));
    QCoreApplication::setApplicationName(QLatin1String(Identity::name));
    QCoreApplication::setApplicationVersion(QStringLiteral(CLIENT_VERSION));
}

// A locale without Chinese would turn key names and paths into question marks.
void ensureEncoding()
{
    const QTextCodec* const codec = QTextCodec::codecForLocale();
    if (!codec || !codec->canEncode(QStringLiteral("买入")))
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

int complain(const QString& message)
{
    std::fprintf(stderr, "tradeclient: %s\n", qPrintable(message));
    return EXIT_FAILURE;
}

// To the standard error always, in a box too when somebody can see it.
void tell(QMessageBox::Icon icon, const QString& message)
{
    complain(message);
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
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

// Chooses what to draw on. False when that takes a display and there is none.
bool chooseDisplay(bool onlyPictures)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return true;
    if (onlyPictures)
        return qputenv("QT_QPA_PLATFORM", "offscreen");
    return CLIENT_SYSTEM_HAS_DISPLAY || qEnvironmentVariableIsSet("DISPLAY")
        || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

int print(const QByteArray& text)
{
    if (std::fwrite(text.constData(), 1, size_t(text.size()), stdout) == size_t(text.size())
        && std::fflush(stdout) == 0)
        return EXIT_SUCCESS;
    return complain(Client::tr("无法写入标准输出：%1").arg(qt_error_string()));
}

int listPictures(const Pictures& pictures)
{
    QByteArray list;
    for (const QString& file : pictures.files)
        list += file.toLocal8Bit() + '\n';
    const int status = print(list);
    return pictures.failure.isEmpty() ? status : complain(pictures.failure);
}

int printRecord(const DataDirectory& directory)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    const int status = print(RecordStore::toJson(core.record()));
    return report.isClean() ? status : complain(report.message());
}

int drawPages(const SettingsModule& module, const DataDirectory& directory, const QString& target)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    const std::unique_ptr<QWidget> dialog(module.createDialog(&core));
    if (!dialog)
        return complain(Client::tr("设置模块 %1 无法创建设置窗口").arg(module.fileName()));
    const int status = listPictures(writeScreenshots(*dialog, target));
    return report.isClean() ? status : complain(report.message());
}

int writePages(const SettingsModule& module, const DataDirectory& directory, const QString& target)
{
    // The dialog asks for the data directory, which is made where there is none.
    const QString home = ExpectedHome::path();
    const bool borrowed = !QFileInfo::exists(home);
    const QString homeless = ExpectedHome::make();
    const int status
        = homeless.isEmpty() ? drawPages(module, directory, target) : complain(homeless);
    if (borrowed)
        QDir().rmdir(home);
    return status;
}

int runGallery(SkinSwitcher& skins, const QString& target)
{
    Gallery gallery;
    if (!target.isEmpty())
        return listPictures(gallery.writeScreenshots(target));
    skins.fill(gallery.skinMenu());
    gallery.show();
    return QCoreApplication::exec();
}

// Puts in place what the client needs in its data directory. Returns what went wrong.
QStringList moveIn(const DataDirectory& directory, const Instance& instance,
                   const QStringList& arguments)
{
    QStringList troubles{directory.makeConfigDirectory()
                             ? QString()
                             : Client::tr("无法创建目录 %1").arg(directory.configDirectory()),
                         instance.writeStart(QDir::currentPath(),
                                             QCoreApplication::applicationFilePath(), arguments),
                         instance.installRestarter(QCoreApplication::applicationDirPath()
                                                   + QStringLiteral("/restart"))};
    troubles.removeAll(QString());
    return troubles;
}

int runClient(const SettingsModule& module, SkinSwitcher& skins, const QStringList& arguments)
{
    const QString homeless = ExpectedHome::make();
    if (!homeless.isEmpty())
        return fail(homeless);
    const DataDirectory directory(module.homePath());
    Instance instance(directory);
    QString refusal = instance.claim();
    if (instance.isTaken()) {
        if (FrontRequests::send(directory))
            return EXIT_SUCCESS;
        refusal = instance.claim(); // the other may have ended meanwhile
    }
    if (!refusal.isEmpty())
        return fail(refusal);

    QStringList troubles = moveIn(directory, instance, arguments);
    TradeCore core(directory);
    core.store().removeLeftovers();
    const RecordStore::LoadReport report = core.load();
    if (!report.isClean())
        troubles += report.message();
    int status;
    {
        MainWindow window(module, core, directory);
        skins.fill(window.skinMenu());
        window.show();
        const FrontRequests requests(directory);
        QObject::connect(&requests, &FrontRequests::arrived, &window, &MainWindow::comeToFront);
        for (const QString& trouble : qAsConst(troubles))
            tell(QMessageBox::Warning, trouble);
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

    ClientOptions options;
    QStringList arguments;
    StartSettings settings;
    SettingsModule module;
    QString failure;
    const DataDirectory directory(DataDirectory::homeIn(ExpectedHome::path().toUtf8().constData()));
    {
        // Scale and language must be known before the interface exists: a first application object
        // without one finds them.
        QCoreApplication early(argc, argv);
        arguments = QCoreApplication::arguments().mid(1);
        settings = StartSettings::read(directory);
        settings.installTranslations(&early);
        options = ClientOptions::parse();
        failure = module.load(options.module);
        if (failure.isEmpty() && options.onlyReads())
            failure = ExpectedHome::problem();
        if (options.printRecord)
            return failure.isEmpty() ? printRecord(directory) : fail(failure);
        if (!chooseDisplay(!options.screenshotDirectory.isEmpty()))
            return fail(failure.isEmpty() ? Client::tr(
                            "没有可用的显示。可用 --screenshots 将设置窗口保存为图片。")
                                          : failure);
    }

    auto scale = std::make_unique<InterfaceScale>(options.scalePercent > 0 ? options.scalePercent
                                                                           : settings.scalePercent);
    QApplication application(argc, argv);
    scale.reset();
    settings.installTranslations(&application);
    if (!failure.isEmpty())
        return fail(failure);

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
    return runClient(module, skins, arguments);
}
