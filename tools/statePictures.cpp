// statePictures DIR SKIN PERCENT: draws the settings dialog in states that a user brings about,
// with the focus in it, a cell that waits for a key, and marks.
#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "client/DataDirectory.h"
#include "client/InterfaceScale.h"
#include "client/TradeCore.h"
#include "libskin/SkinLibrary.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/SwitchEx.h"

#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QPixmap>

#include <cstdio>

namespace {

void chooseGroup(CTradeConfigWidget& dialog, int group)
{
    QWidget& bar = *dialog.findChild<QWidget*>(QStringLiteral("switchex_widget"));
    const QPointF at(219 * group + 110, 30);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&bar, &event);
    }
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&bar, &leave);
}

void pressCtrlF8(QWidget& cell)
{
    cell.setFocus(Qt::TabFocusReason);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F8, Qt::ControlModifier);
    QCoreApplication::sendEvent(&cell, &press);
}

bool draw(CTradeConfigWidget& dialog, const QDir& target, const char* name)
{
    QCoreApplication::processEvents();
    return dialog.grab().save(target.filePath(QLatin1String(name)));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: statePictures DIR SKIN PERCENT\n");
        return EXIT_FAILURE;
    }
    const InterfaceScale scale(QByteArray(argv[3]).toInt());
    const QApplication application(argc, argv);
    QApplication::setStyle(new SkinStyle);
    QApplication::setCursorFlashTime(0);
    const SkinSwitcher skins;
    const QDir target(QString::fromLocal8Bit(argv[1]));
    if (!CorvelSkin::SkinLibrary::instance()->load(QString::fromLocal8Bit(argv[2]))
        || !target.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "statePictures: no such skin, or no directory\n");
        return EXIT_FAILURE;
    }

    TradeCore core(DataDirectory(QDir::homePath()), TradeCore::Storage::None);
    core.load();
    CTradeConfigWidget dialog(&core);
    const Ui_CTradeConfigWidget& ui = dialog.ui;
    dialog.show();
    dialog.activateWindow();
    QCoreApplication::processEvents();

    chooseGroup(dialog, 1);
    ui.checkBox_trade_pk->setFocus(Qt::TabFocusReason);
    dialog.setAttribute(Qt::WA_KeyboardFocusChange);
    bool drawn = draw(dialog, target, "state-focus.png");

    chooseGroup(dialog, 2);
    const auto cell = [&ui](int row) { return ui.tableWidget_shortcut->cellWidget(row, 1); };
    cell(2)->setFocus(Qt::TabFocusReason);
    drawn = draw(dialog, target, "state-capture.png") && drawn;

    pressCtrlF8(*cell(1));
    ui.tableWidget_shortcut->clearSelection(); // no Ctrl is held that would keep the row in it
    pressCtrlF8(*cell(3));
    drawn = draw(dialog, target, "state-marks.png") && drawn;
    return drawn ? EXIT_SUCCESS : EXIT_FAILURE;
}
