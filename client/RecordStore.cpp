#include "client/RecordStore.h"

#include "client/DataDirectory.h"
#include "client/FileReplace.h"
#include "client/RecordFile.h"
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
    const bool whole = damage == Whole;
    QStringList lines{(whole ? tr("交易参数文件 %1 无法使用，已使用默认值：")
                             : tr("交易参数文件 %1 中有无效的值，这些参数已使用默认值："))
                          .arg(file)};
    lines += problems;
    if (!setAside.isEmpty())
        lines += (whole ? tr("该文件已移至 %1。") : tr("该文件的副本保存在 %1。")).arg(setAside);
    else if (keeping)
        lines += whole ? tr("该文件无法移走，仍在原处。") : tr("无法保存该文件的副本。");
    return lines.join(QLatin1Char('\n'));
}

RecordStore::RecordStore(const DataDirectory& directory)
    : m_directory(directory)
    , m_fileName(directory.recordFile())
{
}

RecordStore::LoadReport RecordStore::read(OwnedRecord& record)
{
    record = OwnedRecord();
    m_foreign = QJsonObject();
    m_toKeep = LoadReport::None;

    LoadReport report;
    report.file = m_fileName;
    const QFileInfo info(m_fileName);
    if (!info.exists() && !info.isSymLink())
        return report;
    RecordFile::Content content = RecordFile::read(m_fileName, record);
    report.problems = content.problems;
    m_foreign = content.foreign;
    if (!report.isClean()) {
        report.damage = m_toKeep = content.isRecord ? LoadReport::WrongValues : LoadReport::Whole;
        m_wrongFile = content.bytes;
    }
    return report;
}

RecordStore::LoadReport RecordStore::load(OwnedRecord& record)
{
    LoadReport report = read(record);
    if (!report.isClean()) {
        report.keeping = true;
        report.setAside = keepAside();
    }
    return report;
}

// Returns where the file is kept, or an empty text when that failed.
QString RecordStore::keepAside()
{
    QString place = m_toKeep == LoadReport::WrongValues ? earlierCopy() : QString();
    if (place.isEmpty()) {
        const QString fresh = datedName(QStringLiteral("bad"));
        const bool kept = m_toKeep == LoadReport::Whole ? QFile::rename(m_fileName, fresh)
                                                        : replaceFile(fresh, m_wrongFile).isEmpty();
        if (!kept)
            return QString();
        place = fresh;
    }
    m_toKeep = LoadReport::None;
    return place;
}

QString RecordStore::keepOld(const OwnedRecord& record) const
{
    if (!m_directory.makeConfigDirectory())
        return tr("无法创建目录 %1").arg(m_directory.configDirectory());
    return RecordFile::write(datedName(QStringLiteral("old")), record);
}

QString RecordStore::datedName(const QString& kind) const
{
    const QFileInfo info(m_fileName);
    const QString base = info.absoluteDir().absoluteFilePath(info.completeBaseName());
    const QString stamp
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    QString name = QStringLiteral("%1.%2.%3.json").arg(base, stamp, kind);
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = QStringLiteral("%1.%2_%3.%4.json").arg(base, stamp).arg(number).arg(kind);
    return name;
}

// A client that is started again and again before anything is saved keeps one copy.
QString RecordStore::earlierCopy() const
{
    const QFileInfo info(m_fileName);
    const QFileInfoList copies = info.absoluteDir().entryInfoList(
        {info.completeBaseName() + QStringLiteral(".*.bad.json")}, QDir::Files);
    for (const QFileInfo& copy : copies) {
        QFile file(copy.absoluteFilePath());
        if (copy.size() == m_wrongFile.size() && file.open(QIODevice::ReadOnly)
            && file.readAll() == m_wrongFile)
            return file.fileName();
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
    if (m_toKeep != LoadReport::None && QFileInfo::exists(m_fileName) && keepAside().isEmpty())
        return tr("无法保留不可用的文件 %1").arg(m_fileName);
    m_toKeep = LoadReport::None;

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
    const QRegularExpression temporary(
        QStringLiteral("^%1(\\..+)?\\.json\\.(?=[^.]*[a-z])(?=[^.]*[A-Z])[A-Za-z]{6}$")
            .arg(QRegularExpression::escape(info.completeBaseName())));
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
