#include "client/RecordStore.h"

#include "client/DataDirectory.h"
#include "client/FileReplace.h"
#include "client/RecordFields.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

using RecordFields::Field;
using RecordFields::Kind;

namespace {

QJsonValue elementToJson(const TradeParm& record, const Field& field, int index)
{
    switch (field.kind) {
    case Kind::Integer:
        return RecordFields::integer(record, field, index);
    case Kind::Text:
        return RecordFields::text(record, field, index);
    case Kind::Bytes:
        return QString::fromLatin1(RecordFields::bytes(record, field).toHex());
    }
    return QJsonValue();
}

QJsonObject toObject(const OwnedRecord& record)
{
    QJsonObject object;
    for (const Field& field : RecordFields::all()) {
        const QString name = QLatin1String(field.name);
        if (!field.isArray) {
            object.insert(name, elementToJson(record.get(), field, 0));
            continue;
        }
        QJsonArray array;
        for (int i = 0; i < field.count; ++i)
            array.append(elementToJson(record.get(), field, i));
        object.insert(name, array);
    }
    return object;
}

// A value as the file spells it, for messages.
QString spelled(const QJsonValue& value)
{
    const QByteArray inArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QString text = QString::fromUtf8(inArray.mid(1, inArray.size() - 2));
    constexpr int longest = 80;
    return text.size() > longest ? text.left(longest) + QStringLiteral("…") : text;
}

bool isWholeNumber(double number) { return std::floor(number) == number; }

// Stores one element; false when the value has the wrong type or is out of range.
bool elementFromJson(TradeParm& record, const Field& field, int index, const QJsonValue& value)
{
    switch (field.kind) {
    case Kind::Integer: {
        const double number = value.toDouble();
        if (!value.isDouble() || !isWholeNumber(number) || number < field.minimum
            || number > field.maximum)
            return false;
        RecordFields::setInteger(record, field, index, static_cast<int>(number));
        return true;
    }
    case Kind::Text: {
        const QString text = value.toString();
        if (!value.isString() || !RecordFields::isAllowed(field, text)
            || text.contains(QChar(QChar::Null)))
            return false;
        RecordFields::setText(record, field, index, text);
        return true;
    }
    case Kind::Bytes: {
        const QByteArray digits = value.toString().toLatin1();
        const QByteArray bytes = QByteArray::fromHex(digits);
        if (!value.isString() || bytes.size() != field.count || bytes.toHex() != digits.toLower())
            return false;
        RecordFields::setBytes(record, field, bytes);
        return true;
    }
    }
    return false;
}

QString wrongValue(const Field& field, int index, const QJsonValue& value)
{
    return RecordStore::tr("%1 的值 %2 无效（应为%3）")
        .arg(RecordFields::elementName(field, index), spelled(value),
             RecordFields::allowedValues(field));
}

QStringList fromObject(OwnedRecord& record, const QJsonObject& object)
{
    QStringList problems;
    for (const Field& field : RecordFields::all()) {
        const auto found = object.constFind(QLatin1String(field.name));
        if (found == object.constEnd())
            continue;
        const QJsonValue value = found.value();
        if (!field.isArray) {
            if (!elementFromJson(record.get(), field, 0, value))
                problems += wrongValue(field, 0, value);
            continue;
        }
        const QJsonArray array = value.toArray();
        if (!value.isArray() || array.size() != field.count) {
            problems += RecordStore::tr("%1 的值 %2 无效（应为 %3 个元素的数组）")
                            .arg(QLatin1String(field.name), spelled(value))
                            .arg(field.count);
            continue;
        }
        for (int i = 0; i < field.count; ++i) {
            if (!elementFromJson(record.get(), field, i, array.at(i)))
                problems += wrongValue(field, i, array.at(i));
        }
    }
    return problems;
}

QJsonObject foreignFields(QJsonObject object)
{
    for (const Field& field : RecordFields::all())
        object.remove(QLatin1String(field.name));
    return object;
}

// The first element whose value load() would refuse, in words; empty when there is none.
QString refusal(const OwnedRecord& record)
{
    for (const Field& field : RecordFields::all()) {
        for (int i = 0; field.kind != Kind::Bytes && i < field.count; ++i) {
            const bool allowed = field.kind == Kind::Integer
                ? RecordFields::isAllowed(field, RecordFields::integer(record.get(), field, i))
                : RecordFields::isAllowed(field, RecordFields::text(record.get(), field, i));
            if (!allowed)
                return wrongValue(field, i, elementToJson(record.get(), field, i));
        }
    }
    return QString();
}

} // namespace

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
            report.problems = fromObject(record, document.object());
            m_foreign = foreignFields(document.object());
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
    const QString refused = refusal(record);
    if (!refused.isEmpty())
        return refused;
    if (!m_directory.makeConfigDirectory())
        return tr("无法创建目录 %1").arg(m_directory.configDirectory());
    if (m_mustMoveAside) {
        if (QFileInfo::exists(m_fileName) && moveAside().isEmpty())
            return tr("无法移走不可用的文件 %1").arg(m_fileName);
        m_mustMoveAside = false;
    }

    QJsonObject object = m_foreign;
    const QJsonObject own = toObject(record);
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
    return QJsonDocument(toObject(record)).toJson(QJsonDocument::Indented);
}
