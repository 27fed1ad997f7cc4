#include "client/RecordStore.h"

#include "client/DataDirectory.h"
#include "client/FileReplace.h"
#include "client/RecordJson.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

QString RecordStore::LoadReport::message() const
{
    if (isClean())
        return QString();
    QStringList lines{tr("交易参数文件 %1 无法使用：").arg(file)};
    lines += problems;
    lines += setAside.isEmpty() ? tr("该文件无法移走，仍在原处。已使用默认值。")
                                : tr("该文件已移至 %1。已使用默认值。").arg(setAside);
    return lines.join(QLatin1Char('\n'));
}

RecordStore::RecordStore(const DataDirectory& directory)
    : m_directory(directory)
    , m_fileName(directory.recordFile())
{
}

RecordStore::LoadReport RecordStore::load(OwnedRecord& record)
{
    record = OwnedRecord();
    m_foreign = QJsonObject();
    m_mustMoveAside = false;

    LoadReport report;
    report.file = m_fileName;
    const QFileInfo info(m_fileName);
    if (!info.exists() && !info.isSymLink())
        return report;

    QFile file(m_fileName);
    if (info.isDir() || !file.open(QIODevice::ReadOnly)) {
        report.problems
            += tr("无法读取：%1").arg(info.isDir() ? tr("是一个目录") : file.errorString());
    } else {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
        file.close();
        if (error.error != QJsonParseError::NoError) {
            report.problems
                += tr("第 %1 字节处格式错误：%2").arg(error.offset).arg(error.errorString());
        } else if (!document.isObject()) {
            report.problems += tr("内容不是 JSON 对象");
        } else {
            report.problems = RecordJson::toRecord(document.object(), record);
            m_foreign = RecordJson::foreignFields(document.object());
        }
    }
    if (report.isClean())
        return report;

    record = OwnedRecord();
    m_foreign = QJsonObject();
    report.setAside = moveAside();
    m_mustMoveAside = report.setAside.isEmpty();
    return report;
}

QString RecordStore::moveAside() const
{
    const QFileInfo info(m_fileName);
    const QString stamp
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    constexpr int mostOfOneSecond = 1000;
    for (int number = 1; number <= mostOfOneSecond; ++number) {
        const QString extra = number == 1 ? QString() : QStringLiteral("_%1").arg(number);
        const QString target = info.absoluteDir().absoluteFilePath(
            QStringLiteral("%1.%2%3.bad.json").arg(info.completeBaseName(), stamp, extra));
        // rename() never replaces a file that is there.
        if (QFile::rename(m_fileName, target))
            return target;
        if (!QFileInfo::exists(target))
            return QString();
    }
    return QString();
}

QString RecordStore::save(const OwnedRecord& record)
{
    const QJsonObject own = RecordJson::fromRecord(record);
    OwnedRecord readBack;
    const QStringList refused = RecordJson::toRecord(own, readBack);
    if (!refused.isEmpty())
        return refused.first();
    if (!m_directory.makeConfigDirectory())
        return tr("无法创建目录 %1").arg(m_directory.configDirectory());
    if (m_mustMoveAside) {
        if (QFileInfo::exists(m_fileName) && moveAside().isEmpty())
            return tr("无法移走不可用的文件 %1").arg(m_fileName);
        m_mustMoveAside = false;
    }

    QJsonObject object = m_foreign;
    for (auto it = own.constBegin(); it != own.constEnd(); ++it)
        object.insert(it.key(), it.value());
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Indented);
    return replaceFile(m_fileName, text);
}

void RecordStore::removeLeftovers() const
{
    const QFileInfo info(m_fileName);
    // Six random letters; only a mix of capitals and small ones is surely not a user's word.
    const QRegularExpression temporary(QStringLiteral("^%1\\.(?=.*[a-z])(?=.*[A-Z])[A-Za-z]{6}$")
                                           .arg(QRegularExpression::escape(info.fileName())));
    const QDir directory = info.absoluteDir();
    for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden)) {
        if (temporary.match(name).hasMatch())
            QFile::remove(directory.absoluteFilePath(name));
    }
}

QByteArray RecordStore::toJson(const OwnedRecord& record)
{
    return QJsonDocument(RecordJson::fromRecord(record)).toJson(QJsonDocument::Indented);
}
