#include "client/RecordFile.h"

#include "client/FileReplace.h"
#include "client/OwnedRecord.h"
#include "client/RecordJson.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RecordFile)
};

} // namespace

RecordFile::Content RecordFile::read(const QString& name, OwnedRecord& record)
{
    record = OwnedRecord();
    Content content;
    const auto unusable = [&content](const QString& reason) {
        content.problems += reason;
        return content;
    };
    const QFileInfo info(name);
    if (info.exists() && !info.isFile())
        return unusable(Texts::tr("无法读取：%1").arg(Texts::tr("不是普通文件")));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return unusable(Texts::tr("无法读取：%1").arg(file.errorString()));
    content.bytes = file.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content.bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return unusable(
            Texts::tr("第 %1 字节处格式错误：%2").arg(error.offset).arg(error.errorString()));
    if (!document.isObject())
        return unusable(Texts::tr("内容不是 JSON 对象"));

    content.isRecord = true;
    content.problems = RecordJson::toRecord(document.object(), record);
    content.foreign = RecordJson::foreignFields(document.object());
    return content;
}

QString RecordFile::write(const QString& name, const OwnedRecord& record)
{
    return replaceFile(
        name, QJsonDocument(RecordJson::fromRecord(record)).toJson(QJsonDocument::Indented));
}
