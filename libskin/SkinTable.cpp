#include "libskin/SkinTable.h"

#include "libskin/PaletteRoles.h"

#include <QDir>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

#include <algorithm>

namespace CorvelSkin {
namespace {

constexpr int maxPixelSize = 200;
constexpr int maxImageSide = 4096;
constexpr int maxFrames = 64;

/// The usual hundreds against QFont's own scale.
constexpr struct {
    int hundreds;
    int weight;
} fontWeights[] = {
    {100, QFont::Thin},   {200, QFont::ExtraLight}, {300, QFont::Light},
    {400, QFont::Normal}, {500, QFont::Medium},     {600, QFont::DemiBold},
    {700, QFont::Bold},   {800, QFont::ExtraBold},  {900, QFont::Black},
};

class Reader {
public:
    Reader(const QString& file, QVector<SkinProblem>& problems)
        : m_file(file)
        , m_problems(problems)
    {
    }

    SkinTable read(const QByteArray& bytes);

private:
    template <typename Take> void section(const QJsonObject& table, QLatin1String name, Take take);
    QHash<QString, QColor> paletteSection(const QJsonObject& table, QLatin1String name);
    QHash<QString, QString> titles(const QJsonObject& table);
    bool colour(const QString& key, const QJsonValue& value, QColor& result);
    bool font(const QString& key, const QJsonValue& value, FontEntry& result);
    bool image(const QString& key, const QJsonValue& value, ImageEntry& result);
    bool wholeNumber(const QString& key, const char* field, const QJsonValue& value, int top,
                     int& result);
    bool refuse(const QString& key, const QString& reason);

    const QString m_file;
    QVector<SkinProblem>& m_problems;
};

bool Reader::refuse(const QString& key, const QString& reason)
{
    m_problems.append({m_file, key, reason});
    return false;
}

template <typename Take>
void Reader::section(const QJsonObject& table, QLatin1String name, Take take)
{
    const QJsonValue value = table.value(name);
    if (value.isUndefined())
        return;
    if (!value.isObject()) {
        refuse(name, QStringLiteral("the section must be an object of keys"));
        return;
    }
    const QJsonObject entries = value.toObject();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        take(entry.key(), entry.value());
}

QHash<QString, QColor> Reader::paletteSection(const QJsonObject& table, QLatin1String name)
{
    QHash<QString, QColor> result;
    section(table, name, [&](const QString& key, const QJsonValue& value) {
        QColor read;
        if (!paletteRole(key))
            refuse(key, QStringLiteral("no such role of the palette"));
        else if (colour(key, value, read))
            result.insert(key, read);
    });
    return result;
}

QHash<QString, QString> Reader::titles(const QJsonObject& table)
{
    QHash<QString, QString> result;
    const QLatin1String key("name");
    const QJsonValue value = table.value(key);
    const QJsonObject names = value.toObject();
    for (auto name = names.begin(); name != names.end(); ++name) {
        if (name->toString().isEmpty())
            refuse(key, QStringLiteral("the name in a language must be a text"));
        else
            result.insert(name.key(), name->toString());
    }
    if (!value.isUndefined() && !value.isObject())
        refuse(key, QStringLiteral("the name must be an object of languages"));
    return result;
}

bool Reader::colour(const QString& key, const QJsonValue& value, QColor& result)
{
    const QString text = value.toString();
    const auto isHexDigit = [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            || (c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f'));
    };
    const bool wellFormed = (text.size() == 7 || text.size() == 9)
        && text.front() == QLatin1Char('#')
        && std::all_of(text.begin() + 1, text.end(), isHexDigit);
    if (!wellFormed)
        return refuse(key, QStringLiteral("a colour must be a text #RRGGBB or #AARRGGBB"));
    result = QColor(text);
    return true;
}

bool Reader::wholeNumber(const QString& key, const char* field, const QJsonValue& value, int top,
                         int& result)
{
    const double number = value.toDouble(-1.0);
    if (!(number >= 1.0) || number > top || number != qFloor(number))
        return refuse(key,
                      QStringLiteral("\"%1\" must be a whole number from 1 to %2")
                          .arg(QLatin1String(field))
                          .arg(top));
    result = int(number);
    return true;
}

bool Reader::font(const QString& key, const QJsonValue& value, FontEntry& result)
{
    if (!value.isObject())
        return refuse(key, QStringLiteral("a font must be an object"));
    const QJsonObject entry = value.toObject();

    const QJsonArray families = entry.value(QLatin1String("families")).toArray();
    for (const QJsonValue& family : families) {
        if (family.toString().isEmpty())
            return refuse(key, QStringLiteral("every family must be a text"));
        result.families.append(family.toString());
    }
    if (result.families.isEmpty())
        return refuse(key, QStringLiteral("\"families\" must list at least one family"));

    if (!wholeNumber(key, "pixelSize", entry.value(QLatin1String("pixelSize")), maxPixelSize,
                     result.pixelSize))
        return false;

    const QJsonValue weight = entry.value(QLatin1String("weight"));
    const double hundreds = weight.isUndefined() ? 400.0 : weight.toDouble(-1.0);
    const auto* const row = std::find_if(
        std::begin(fontWeights), std::end(fontWeights),
        [hundreds](const auto& candidate) { return candidate.hundreds == hundreds; });
    if (row == std::end(fontWeights))
        return refuse(key, QStringLiteral("\"weight\" must be 100, 200, ... or 900"));
    result.weight = row->weight;
    return true;
}

bool Reader::image(const QString& key, const QJsonValue& value, ImageEntry& result)
{
    if (!value.isObject())
        return refuse(key, QStringLiteral("an image must be an object"));
    const QJsonObject entry = value.toObject();

    const QString file = entry.value(QLatin1String("file")).toString();
    const QString clean = QDir::cleanPath(file);
    if (file.isEmpty())
        return refuse(key, QStringLiteral("\"file\" must name the image"));
    if (QDir::isAbsolutePath(clean) || clean.startsWith(QLatin1String(".."))
        || clean.startsWith(QLatin1Char(':')) || clean.contains(QChar::Null))
        return refuse(key, QStringLiteral("\"file\" must lie inside the skin's folder"));
    result.file = clean;

    const QJsonValue frames = entry.value(QLatin1String("frames"));
    if (!frames.isUndefined() && !wholeNumber(key, "frames", frames, maxFrames, result.frames))
        return false;

    const QJsonValue size = entry.value(QLatin1String("size"));
    if (size.isUndefined())
        return true;
    const QJsonArray sides = size.toArray();
    if (sides.size() != 2)
        return refuse(key, QStringLiteral("\"size\" must be [width, height]"));
    if (!wholeNumber(key, "size", sides.at(0), maxImageSide, result.size.rwidth())
        || !wholeNumber(key, "size", sides.at(1), maxImageSide, result.size.rheight()))
        return false;
    if (result.size.width() % result.frames != 0)
        return refuse(key,
                      QStringLiteral("%1 frames do not divide the width %2")
                          .arg(result.frames)
                          .arg(result.size.width()));
    return true;
}

SkinTable Reader::read(const QByteArray& bytes)
{
    SkinTable result;
    if (bytes.size() > maxTableBytes) {
        refuse(QString(), QStringLiteral("the table is larger than %1 bytes").arg(maxTableBytes));
        return result;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        refuse(QString(),
               QStringLiteral("not a JSON table: %1, at byte %2")
                   .arg(error.errorString())
                   .arg(error.offset));
        return result;
    }
    if (!document.isObject()) {
        refuse(QString(), QStringLiteral("the table must be an object of sections"));
        return result;
    }

    const QJsonObject table = document.object();
    result.titles = titles(table);
    section(table, QLatin1String("colours"), [&](const QString& key, const QJsonValue& value) {
        QColor entry;
        if (colour(key, value, entry))
            result.colours.insert(key, entry);
    });
    section(table, QLatin1String("fonts"), [&](const QString& key, const QJsonValue& value) {
        FontEntry entry;
        if (font(key, value, entry))
            result.fonts.insert(key, entry);
    });
    section(table, QLatin1String("images"), [&](const QString& key, const QJsonValue& value) {
        ImageEntry entry;
        if (image(key, value, entry))
            result.images.insert(key, entry);
    });
    result.palette = paletteSection(table, QLatin1String("palette"));
    result.disabledPalette = paletteSection(table, QLatin1String("disabledPalette"));
    return result;
}

} // namespace

SkinTable readSkinTable(const QByteArray& bytes, const QString& file,
                        QVector<SkinProblem>& problems)
{
    return Reader(file, problems).read(bytes);
}

} // namespace CorvelSkin
