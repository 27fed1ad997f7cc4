#include "client/RestartOffer.h"

#include "client/DataDirectory.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QProcess>

namespace {

struct Offer {
    Q_DECLARE_TR_FUNCTIONS(RestartOffer)
};

} // namespace

void RestartOffer::make(QWidget* parent, const DataDirectory& directory)
{
    const QString title = Offer::tr("交易客户端");
    if (QMessageBox::question(parent, title, Offer::tr("部分修改需要重启后生效，确定现在重启吗？"))
        != QMessageBox::Yes)
        return;
    if (QProcess::startDetached(directory.restartProgram(), {QStringLiteral("jy")}))
        QCoreApplication::exit(0);
    else
        QMessageBox::critical(parent, title,
                              Offer::tr("无法启动重启程序 %1。").arg(directory.restartProgram()));
}
