#include "client/Reading.h"

#include "appearance/Pictures.h"
#include "client/ExpectedHome.h"
#include "client/MainWindow.h"
#include "client/Messages.h"
#include "client/Screenshots.h"
#include "client/SettingsModule.h"
#include "client/TradeCore.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

#include <cstdlib>
#include <memory>

namespace {

int drawPages(const SettingsModule& module, const DataDirectory& directory, const QString& target)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    const std::unique_ptr<QWidget> dialog(module.createDialog(&core));
    if (!dialog)
        return Messages::complain(
            QCoreApplication::translate("Reading", "设置模块 %1 无法创建设置窗口")
                .arg(module.fileName()));
    Pictures pictures = writeScreenshots(*dialog, target);
    MainWindow window(module, core, directory);
    window.resize(MainWindow::usualSize());
    pictures.add(QStringLiteral("client"), window.grab());
    const int status = Reading::listPictures(pictures);
    return report.isClean() ? status : Messages::complain(report.message());
}

} // namespace

int Reading::listPictures(const Pictures& pictures)
{
    QByteArray list;
    for (const QString& file : pictures.files)
        list += file.toLocal8Bit() + '\n';
    const int status = Messages::print(list);
    return pictures.failure.isEmpty() ? status : Messages::complain(pictures.failure);
}

int Reading::printRecord(const DataDirectory& directory)
{
    TradeCore core(directory, TradeCore::Storage::None);
    const RecordStore::LoadReport report = core.load();
    const int status = Messages::print(RecordStore::toJson(core.record()));
    return report.isClean() ? status : Messages::complain(report.message());
}

int Reading::writePages(const SettingsModule& module, const DataDirectory& directory,
                        const QString& target)
{
    // The dialog asks for the data directory, which is made where there is none.
    const QString home = ExpectedHome::path();
    const bool borrowed = !QFileInfo::exists(home);
    const QString homeless = ExpectedHome::make();
    const int status
        = homeless.isEmpty() ? drawPages(module, directory, target) : Messages::complain(homeless);
    if (borrowed)
        QDir().rmdir(home);
    return status;
}
