#include "support/TestDialog.h"

#include <QApplication>

// A host that shows the splitting page, until somebody ends it.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("splittingHost"));
    const TestDialog dialog([](FakeTrade& trade) {
        trade.parm().splitEnabled = 1;
        trade.parm().splitStrategy = 1;
        trade.parm().splitMaxQty = 1000;
        trade.parm().splitMinQty = 200;
    });
    dialog->ui.stackedWidget_trade->setCurrentWidget(dialog->ui.page_8);
    dialog->SetCurrentIndex(1);
    dialog->show();
    return QCoreApplication::exec();
}
