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
#include "client/Messages.h"
#include "client/Reading.h"
#include "client/SettingsModule.h"
#include "client/SkinChoice.h"
#include "client/SkinReport.h"
#include "client/StartSettings.h"
#include "client/TradeCore.h"
#include "gallery/Gallery.h"
#include "libskin/SkinLibrary.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

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

// The skin that the user asks for, or the one that was last chosen, unless that is gone. Returns
// why it cannot be used.
QString loadSkin(const QString& asked, const QString& chosen)
{
    CorvelSkin::SkinLibrary* const library = CorvelSkin::SkinLibrary::instance();
    const QString skin = !asked.isEmpty() || library->names().contains(chosen)
        ? (asked.isEmpty() ? chosen : asked)
        : QString();
    if (skin.isEmpty() || library->load(skin))
        return QString();
    return SkinReport::refusal(skin, library->problems()) + QLatin1Char('\n')
        + Client::tr("已改用内置的浅色皮肤。");
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

int runGallery(SkinSwitcher& skins, const QString& target)
{
    Gallery gallery;
    if (!target.isEmpty())
        return Reading::listPictures(gallery.writeScreenshots(target));
    skins.fill(gallery.skinMenu());
    gallery.show();
    return QCoreApplication::exec();
}

// As installed; in the build tree it is beside this program.
QString ownRestarter()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString installed
        = programs.absoluteFilePath(QStringLiteral(CLIENT_RESTART_PLACE "/restart"));
    return QFileInfo::exists(installed) ? QDir::cleanPath(installed)
                                        : programs.absoluteFilePath(QStringLiteral("restart"));
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
                         instance.installRestarter(ownRestarter())};
    troubles.removeAll(QString());
    return troubles;
}

int runClient(const SettingsModule& module, SkinSwitcher& skins, const QStringList& arguments)
{
    const QString homeless = ExpectedHome::make();
    if (!homeless.isEmpty())
        return Messages::fail(homeless);
    const DataDirectory directory(module.homePath());
    Instance instance(directory);
    QString refusal = instance.claim();
    if (instance.isTaken()) {
        if (FrontRequests::send(directory))
            return EXIT_SUCCESS;
        refusal = instance.claim(); // the other may have ended meanwhile
    }
    if (!refusal.isEmpty())
        return Messages::fail(refusal);

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
        window.restorePlace();
        window.show();
        const FrontRequests requests(directory);
        QObject::connect(&requests, &FrontRequests::arrived, &window, &MainWindow::comeToFront);
        for (const QString& trouble : qAsConst(troubles))
            Messages::tell(QMessageBox::Warning, trouble);
        status = QCoreApplication::exec();
        window.keepPlace();
    }
    const QString failure = core.storeIfChanged();
    return failure.isEmpty() ? status : Messages::fail(failure);
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
            return failure.isEmpty() ? Reading::printRecord(directory) : Messages::fail(failure);
        if (!chooseDisplay(!options.screenshotDirectory.isEmpty()
                           || !options.checkedSkin.isEmpty()))
            return Messages::fail(failure.isEmpty() ? Client::tr(
                                      "没有可用的显示。可用 --screenshots 将设置窗口保存为图片。")
                                                    : failure);
    }

    auto scale = std::make_unique<InterfaceScale>(options.scalePercent > 0 ? options.scalePercent
                                                                           : settings.scalePercent);
    QApplication application(argc, argv);
    scale.reset();
    settings.installTranslations(&application);
    if (!options.checkedSkin.isEmpty())
        return SkinReport::check(options.checkedSkin);
    if (!failure.isEmpty())
        return Messages::fail(failure);

    QApplication::setWindowIcon(QIcon(QStringLiteral(":/client/tradeclient.svg")));
    QGuiApplication::setDesktopFileName(QLatin1String(Identity::identifier));
    QApplication::setStyle(new SkinStyle);
    CorvelSkin::SkinLibrary::instance()->addFolder(directory.skinsDirectory());
    SkinSwitcher skins;
    QObject::connect(&skins, &SkinSwitcher::chosen,
                     [&directory](const QString& name) { SkinChoice::keep(directory, name); });
    QObject::connect(&skins, &SkinSwitcher::refused,
                     [](const QString& title, const QVector<CorvelSkin::SkinProblem>& problems) {
                         Messages::tell(QMessageBox::Warning, SkinReport::refusal(title, problems));
                     });
    const QString refusal = loadSkin(options.skin, SkinChoice::read(directory));
    if (!refusal.isEmpty())
        Messages::tell(QMessageBox::Warning, refusal);
    if (options.gallery)
        return runGallery(skins, options.screenshotDirectory);
    if (!options.screenshotDirectory.isEmpty())
        return Reading::writePages(module, directory, options.screenshotDirectory);
    return runClient(module, skins, arguments);
}
