#include "ClientOptions.h"

#include <QCommandLineParser>
#include <cstdio>
#include <cstdlib>

ClientOptions ClientOptions::parse()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("桌面证券交易客户端"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                         tr("将设置窗口的每一页按实际大小保存为 PNG 文件后退出。"),
                                         tr("目录"));
    const QCommandLineOption printRecord(QStringLiteral("print-record"),
                                         tr("以 JSON 格式输出交易参数后退出。"));
    const QCommandLineOption module(QStringLiteral("module"),
                                    tr("加载指定的设置模块，而不是随程序安装的模块。"), tr("文件"));
    const QCommandLineOption skin(QStringLiteral("skin"),
                                  tr("使用指定的皮肤：皮肤名称或皮肤所在的目录。"), tr("皮肤"));
    const QCommandLineOption gallery(QStringLiteral("gallery"),
                                     tr("展示所有自绘控件的每种模式和状态，而不打开客户端。"));
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   tr("以指定的界面缩放（100 到 300）展示控件或保存图片，与 "
                                      "--gallery 或 --screenshots 同用。"),
                                   tr("百分比"));
    parser.addOptions({screenshots, gallery, scale, printRecord, skin, module});
    parser.process(*QCoreApplication::instance());

    const auto refuse = [&parser](const QString& reason) {
        std::fprintf(stderr, "%s\n\n%s", qPrintable(reason), qPrintable(parser.helpText()));
        std::exit(EXIT_FAILURE);
    };
    if (!parser.positionalArguments().isEmpty())
        refuse(tr("多余的参数：%1").arg(parser.positionalArguments().join(QLatin1Char(' '))));
    ClientOptions options;
    options.screenshotDirectory = parser.value(screenshots);
    if (parser.isSet(screenshots) && options.screenshotDirectory.isEmpty())
        refuse(tr("--screenshots 需要一个目录"));
    options.skin = parser.value(skin);
    options.module = parser.value(module);
    options.gallery = parser.isSet(gallery);
    if (parser.isSet(scale)) {
        // A client that runs with a scale of its own would ignore the one that its user sets.
        if (!options.gallery && !parser.isSet(screenshots))
            refuse(tr("--scale 只能与 --gallery 或 --screenshots 同用"));
        bool isNumber = false;
        options.scalePercent = parser.value(scale).toInt(&isNumber);
        if (!isNumber || options.scalePercent < 100 || options.scalePercent > 300)
            refuse(tr("--scale 需要 100 到 300 的整数"));
    }
    options.printRecord = parser.isSet(printRecord);
    return options;
}
