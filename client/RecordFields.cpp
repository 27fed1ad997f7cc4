#include "client/RecordFields.h"

#include "tradeConfig/ITrade.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QStringList>

#include <cstring>

namespace RecordFields {
namespace {

template <typename Element, typename Record>
Element* place(Record& record, const Field& field, int index = 0)
{
    using Byte = std::conditional_t<std::is_const_v<Record>, const char, char>;
    Byte* const start = reinterpret_cast<Byte*>(&record) + field.offset;
    return reinterpret_cast<Element*>(start) + index;
}

QString keyMeaning(const QString& keys, const char* function, const Translate& say)
{
    if (keys.isEmpty())
        return say(QT_TRANSLATE_NOOP("RecordFields", "未设置"));
    const QKeySequence sequence(keys, QKeySequence::NativeText);
    if (sequence.isEmpty() || sequence[0] == Qt::Key_unknown)
        return say(QT_TRANSLATE_NOOP("RecordFields", "无法识别的按键"));
    //: %1 is a key, %2 what it does
    return say(QT_TRANSLATE_NOOP("RecordFields", "按 %1：%2")).arg(keys, say(function));
}

} // namespace

QString translated(const char* source)
{
    return QCoreApplication::translate("RecordFields", source);
}

int integer(const TradeParm& record, const Field& field, int index)
{
    return *place<const std::int32_t>(record, field, index);
}

void setInteger(TradeParm& record, const Field& field, int index, int value)
{
    *place<std::int32_t>(record, field, index) = value;
}

QString text(const TradeParm& record, const Field& field, int index)
{
    return QString::fromLocal8Bit(
        QByteArray::fromStdString(*place<const std::string>(record, field, index)));
}

void setText(TradeParm& record, const Field& field, int index, const QString& value)
{
    *place<std::string>(record, field, index) = value.toLocal8Bit().toStdString();
}

QByteArray bytes(const TradeParm& record, const Field& field)
{
    return QByteArray(place<const char>(record, field), field.count);
}

void setBytes(TradeParm& record, const Field& field, const QByteArray& value)
{
    Q_ASSERT(value.size() == field.count);
    std::memcpy(place<char>(record, field), value.constData(), std::size_t(field.count));
}

bool isAllowed(const Field& field, int value)
{
    return value >= field.minimum && value <= field.maximum;
}

bool isAllowed(const Field& field, const QString& value)
{
    if (!field.meanings)
        return true;
    for (int i = 0; i < field.meaningCount; ++i) {
        if (value == QLatin1String(field.meanings[i].code))
            return true;
    }
    return false;
}

QString allowedValues(const Field& field)
{
    switch (field.kind) {
    case Kind::Integer:
        return QCoreApplication::translate("RecordFields", "%1 至 %2 的整数")
            .arg(field.minimum)
            .arg(field.maximum);
    case Kind::Bytes:
        return QCoreApplication::translate("RecordFields", "%1 个十六进制字节").arg(field.count);
    case Kind::Text:
        break;
    }
    if (!field.meanings)
        return QCoreApplication::translate("RecordFields", "文本");
    QStringList codes;
    for (int i = 0; i < field.meaningCount; ++i)
        codes += QLatin1String(field.meanings[i].code);
    return codes.join(QStringLiteral(", "));
}

QString displayValue(const TradeParm& record, const Field& field, int index)
{
    switch (field.kind) {
    case Kind::Integer:
        return QString::number(integer(record, field, index));
    case Kind::Text:
        return text(record, field, index);
    case Kind::Bytes:
        return QString::fromLatin1(bytes(record, field).toHex());
    }
    return QString();
}

QString meaning(const TradeParm& record, const Field& field, int index, const Translate& say)
{
    if (field.kind == Kind::Bytes)
        return say(QT_TRANSLATE_NOOP("RecordFields", "由客户端保留"));
    if (field.isKeys)
        return keyMeaning(text(record, field, index), field.elementTitles[index], say);
    const QString value = displayValue(record, field, index);
    for (int i = 0; i < field.meaningCount; ++i) {
        const Meaning& known = field.meanings[i];
        if (known.code ? value == QLatin1String(known.code)
                       : integer(record, field, index) == known.value)
            return say(known.text);
    }
    if (field.unit)
        return say(field.unit).arg(value);
    return field.otherMeaning ? say(field.otherMeaning) : QString();
}

QString shortly(const TradeParm& record, const Field& field, int index)
{
    const QString words = field.isKeys ? QString() : meaning(record, field, index);
    return words.isEmpty() ? displayValue(record, field, index) : words;
}

QString title(const Field& field, int index, const Translate& say)
{
    const QString whole = say(field.title);
    if (!field.isArray)
        return whole;
    return say(QT_TRANSLATE_NOOP("RecordFields", "%1：%2"))
        .arg(whole, say(field.elementTitles[index]));
}

QString elementName(const Field& field, int index)
{
    const QString name = QLatin1String(field.name);
    return field.isArray ? QStringLiteral("%1[%2]").arg(name).arg(index) : name;
}

} // namespace RecordFields
