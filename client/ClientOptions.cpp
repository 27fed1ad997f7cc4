#include "client/ClientOptions.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

namespace {

struct Parser : QCommandLineParser {
    Parser()
    {
        setApplicationDescription(ClientOptions::tr("桌面证券交易客户端"));
        addHelpOption();
        addVersionOption();
        addOptions({screenshots, gallery, scale, printRecord, skin, checkSkin, module});
    }

    const QCommandLineOption screenshots{
        QStringLiteral("screenshots"),
        ClientOptions::tr("将设置窗口的每一页和主窗口按实际大小保存为 PNG 文件后退出。"),
        ClientOptions::tr("目录")};
    const QCommandLineOption printRecord{QStringLiteral("print-record"),
                                         ClientOptions::tr("以 JSON 格式输出交易参数后退出。")};
    const QCommandLineOption module{
        QStringLiteral("module"), ClientOptions::tr("加载指定的设置模块，而不是随程序安装的模块。"),
        ClientOptions::tr("文件")};
    const QCommandLineOption skin{QStringLiteral("skin"),
                                  ClientOptions::tr("使用指定的皮肤：皮肤名称或皮肤所在的目录。"),
                                  ClientOptions::tr("皮肤")};
    const QCommandLineOption checkSkin{
        QStringLiteral("check-skin"),
        ClientOptions::tr("列出皮肤的所有问题（文件、键、原因）后退出，有问题时状态为 1。"),
        ClientOptions::tr("目录")};
    const QCommandLineOption gallery{
        QStringLiteral("gallery"),
        ClientOptions::tr("展示所有自绘控件的每种模式和状态，而不打开客户端。")};
    const QCommandLineOption scale{
        QStringLiteral("scale"),
        ClientOptions::tr("以指定的界面缩放（100 到 300）展示控件或保存图片，与 "
                          "--gallery 或 --screenshots 同用。"),
        ClientOptions::tr("百分比")};
};

} // namespace

ClientOptions ClientOptions::parse()
{
    Parser parser;
    parser.process(*QCoreApplication::instance());

    const auto refuse = [&parser](const QString& reason) {
        std::fprintf(stderr, "%s\n\n%s", qPrintable(reason), qPrintable(parser.helpText()));
        std::exit(EXIT_FAILURE);
    };
    if (!parser.positionalArguments().isEmpty())
        refuse(tr("多余的参数：%1").arg(parser.positionalArguments().join(QLatin1Char(' '))));
    ClientOptions options;
    options.screenshotDirectory = parser.value(parser.screenshots);
    if (parser.isSet(parser.screenshots) && options.screenshotDirectory.isEmpty())
        refuse(tr("--screenshots 需要一个目录"));
    options.checkedSkin = parser.value(parser.checkSkin);
    if (parser.isSet(parser.checkSkin) && options.checkedSkin.isEmpty())
        refuse(tr("--check-skin 需要一个目录"));
    options.skin = parser.value(parser.skin);
    options.module = parser.value(parser.module);
    options.gallery = parser.isSet(parser.gallery);
    if (parser.isSet(parser.scale)) {
        // A client that runs with a scale of its own would ignore the one that its user sets.
        if (!options.gallery && !parser.isSet(parser.screenshots))
            refuse(tr("--scale 只能与 --gallery 或 --screenshots 同用"));
        bool isNumber = false;
        options.scalePercent = parser.value(parser.scale).toInt(&isNumber);
        if (!isNumber || options.scalePercent < 100 || options.scalePercent > 300)
            refuse(tr("--scale 需要 100 到 300 的整数"));
    }
    options.printRecord = parser.isSet(parser.printRecord);
    return options;
}
