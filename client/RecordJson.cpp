#include "client/RecordJson.h"

#include "client/OwnedRecord.h"
#include "client/RecordFields.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

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
    return QCoreApplication::translate("RecordJson", "%1 的值 %2 无效（应为%3）")
        .arg(RecordFields::elementName(field, index), spelled(value),
             RecordFields::allowedValues(field));
}

} // namespace

QJsonObject RecordJson::fromRecord(const OwnedRecord& record)
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

QStringList RecordJson::toRecord(const QJsonObject& object, OwnedRecord& record)
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
            problems += QCoreApplication::translate("RecordJson",
                                                    "%1 的值 %2 无效（应为 %3 个元素的数组）")
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

QJsonObject RecordJson::foreignFields(QJsonObject object)
{
    for (const Field& field : RecordFields::all())
        object.remove(QLatin1String(field.name));
    return object;
}
