// Loads the module that it is given, opens the dialog, and tells which skin library came along
// with the module and what colour the switch bar's first item has.
#include "support/FakeTrade.h"

#include <QApplication>
#include <QImage>
#include <QLibrary>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <dlfcn.h>
#include <memory>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 2)
        return EXIT_FAILURE;
    QLibrary module(QString::fromLocal8Bit(argv[1]));
    using Factory = void* (*)(KivoTrade::ITrade*);
    const auto create = reinterpret_cast<Factory>(module.resolve("CreateModuleWidget"));
    if (!create) {
        std::fprintf(stderr, "%s\n", qPrintable(module.errorString()));
        return EXIT_FAILURE;
    }
    FakeTrade trade;
    const std::unique_ptr<QWidget> dialog(static_cast<QWidget*>(create(&trade)));
    dialog->show();
    auto* const bar = dialog->findChild<QWidget*>(QStringLiteral("switchex_widget"));
    const QColor colour = bar->grab().toImage().pixelColor(10, 10);

    const auto service
        = reinterpret_cast<void*>(module.resolve("_ZN10CorvelSkin5CSkin8InstanceEv"));
    Dl_info info{};
    if (!service || dladdr(service, &info) == 0)
        return EXIT_FAILURE;
    std::printf("%s\n%s\n", info.dli_fname, qPrintable(colour.name()));
    return EXIT_SUCCESS;
}
