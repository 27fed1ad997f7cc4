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
    parser.addOptions({screenshots, printRecord, skin, module});
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
    options.printRecord = parser.isSet(printRecord);
    return options;
}
