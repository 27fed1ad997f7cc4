#include "client/SkinReport.h"

#include "client/Messages.h"
#include "libskin/SkinLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include <cstdlib>

using CorvelSkin::SkinLibrary;
using CorvelSkin::SkinProblem;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SkinReport)
};

struct Reason {
    const char* said; ///< by the skin service, for its log
    const char* text;
};

constexpr Reason reasons[] = {
    {"the folder is missing", QT_TRANSLATE_NOOP("SkinReport", "文件夹不存在")},
    {"no skin was named", QT_TRANSLATE_NOOP("SkinReport", "没有指定皮肤")},
    {"the table cannot be opened", QT_TRANSLATE_NOOP("SkinReport", "无法打开皮肤表")},
    {"the table is larger than %1 bytes", QT_TRANSLATE_NOOP("SkinReport", "皮肤表大于 %1 字节")},
    {"not a JSON table: %1, at byte %2",
     QT_TRANSLATE_NOOP("SkinReport", "不是 JSON 表：%1，位于第 %2 字节")},
    {"the table must be an object of sections",
     QT_TRANSLATE_NOOP("SkinReport", "皮肤表必须是由各节组成的对象")},
    {"the section must be an object of keys",
     QT_TRANSLATE_NOOP("SkinReport", "该节必须是由键组成的对象")},
    {"the %1 is absent", QT_TRANSLATE_NOOP("SkinReport", "缺少该键（%1）")},
    {"no such role of the palette", QT_TRANSLATE_NOOP("SkinReport", "调色板没有这个角色")},
    {"the name in a language must be a text",
     QT_TRANSLATE_NOOP("SkinReport", "每种语言的名称必须是文本")},
    {"the name must be an object of languages",
     QT_TRANSLATE_NOOP("SkinReport", "名称必须是由各语言组成的对象")},
    {"a colour must be a text #RRGGBB or #AARRGGBB",
     QT_TRANSLATE_NOOP("SkinReport", "颜色必须是文本 #RRGGBB 或 #AARRGGBB")},
    {"\"%1\" must be a whole number from 1 to %2",
     QT_TRANSLATE_NOOP("SkinReport", "“%1”必须是 1 到 %2 的整数")},
    {"a font must be an object", QT_TRANSLATE_NOOP("SkinReport", "字体必须是对象")},
    {"every family must be a text", QT_TRANSLATE_NOOP("SkinReport", "每个字体族必须是文本")},
    {"\"families\" must list at least one family",
     QT_TRANSLATE_NOOP("SkinReport", "“families”至少要列出一个字体族")},
    {"\"weight\" must be 100, 200, ... or 900",
     QT_TRANSLATE_NOOP("SkinReport", "“weight”必须是 100、200……或 900")},
    {"an image must be an object", QT_TRANSLATE_NOOP("SkinReport", "图像必须是对象")},
    {"\"file\" must name the image", QT_TRANSLATE_NOOP("SkinReport", "“file”必须指明图像文件")},
    {"\"file\" must lie inside the skin's folder",
     QT_TRANSLATE_NOOP("SkinReport", "“file”必须位于皮肤的文件夹内")},
    {"\"size\" must be [width, height]", QT_TRANSLATE_NOOP("SkinReport", "“size”必须是 [宽, 高]")},
    {"%1 frames do not divide the width %2",
     QT_TRANSLATE_NOOP("SkinReport", "%1 帧不能均分宽度 %2")},
    {"%1 frames do not divide the bitmap's %2 pixels",
     QT_TRANSLATE_NOOP("SkinReport", "%1 帧不能均分位图的 %2 像素")},
    {"the file cannot be read", QT_TRANSLATE_NOOP("SkinReport", "无法读取文件")},
    {"the file is missing", QT_TRANSLATE_NOOP("SkinReport", "文件不存在")},
    {"the file is larger than %1 bytes", QT_TRANSLATE_NOOP("SkinReport", "文件大于 %1 字节")},
    {"the bitmap is larger than %1 pixels a side",
     QT_TRANSLATE_NOOP("SkinReport", "位图的边长大于 %1 像素")},
    {"not a PNG bitmap", QT_TRANSLATE_NOOP("SkinReport", "不是 PNG 位图")},
    {"not an SVG drawing", QT_TRANSLATE_NOOP("SkinReport", "不是 SVG 图形")},
    {"no such section", QT_TRANSLATE_NOOP("SkinReport", "没有这一节")},
    {"no such key", QT_TRANSLATE_NOOP("SkinReport", "没有这个键")},
    {"no such field \"%1\"", QT_TRANSLATE_NOOP("SkinReport", "没有字段“%1”")},
};

// What the skin service says, in the language of the interface.
QString translated(const QString& reason)
{
    for (const Reason& row : reasons) {
        QString pattern = QRegularExpression::escape(QString::fromLatin1(row.said));
        pattern.replace(QRegularExpression(QStringLiteral(R"(\\%\d)")), QStringLiteral("(.+)"));
        const QRegularExpressionMatch match
            = QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(reason);
        if (!match.hasMatch())
            continue;
        QString text = Texts::tr(row.text);
        for (int i = 1; i <= match.lastCapturedIndex(); ++i)
            text = text.arg(match.captured(i));
        return text;
    }
    return reason;
}

} // namespace

QStringList SkinReport::lines(const QVector<SkinProblem>& problems)
{
    QStringList lines;
    for (const SkinProblem& problem : problems) {
        QStringList parts{QDir::toNativeSeparators(problem.file), problem.key,
                          translated(problem.reason)};
        parts.removeAll(QString());
        lines += parts.join(QStringLiteral(": "));
    }
    return lines;
}

QString SkinReport::refusal(const QString& skin, const QVector<SkinProblem>& problems)
{
    return Texts::tr("无法使用皮肤 %1：").arg(skin) + QLatin1Char('\n')
        + lines(problems).join(QLatin1Char('\n'));
}

int SkinReport::check(const QString& folder)
{
    const QStringList found = lines(SkinLibrary::instance()->check(folder));
    const QString said = found.isEmpty() ? Texts::tr("皮肤 %1 没有问题。").arg(folder)
                                         : found.join(QLatin1Char('\n'));
    const int status = Messages::print(said.toLocal8Bit() + '\n');
    return found.isEmpty() ? status : EXIT_FAILURE;
}
