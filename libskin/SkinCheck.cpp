#include "libskin/SkinCheck.h"

#include "tradeConfig/skin/SkinKeys.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace CorvelSkin {
namespace {

template <std::size_t count, typename Map>
QSet<QString> known(const SkinKeys::KeyInfo (&keys)[count], const Map& further)
{
    QSet<QString> names;
    for (const SkinKeys::KeyInfo& info : keys)
        names << QLatin1String(info.name);
    for (auto entry = further.begin(); entry != further.end(); ++entry)
        names << entry.key();
    return names;
}

class Check {
public:
    Check(const QString& file, QVector<SkinProblem>& problems)
        : m_file(file)
        , m_problems(problems)
    {
    }

    void sections(const QJsonObject& table);
    void keys(const QJsonObject& section, const QSet<QString>& names);
    void fields(const QJsonObject& section, const QSet<QString>& names);

private:
    const QString m_file;
    QVector<SkinProblem>& m_problems;
};

void Check::sections(const QJsonObject& table)
{
    const QSet<QString> names{QStringLiteral("name"),    QStringLiteral("colours"),
                              QStringLiteral("fonts"),   QStringLiteral("images"),
                              QStringLiteral("palette"), QStringLiteral("disabledPalette")};
    for (const QString& name : table.keys()) {
        if (!names.contains(name))
            m_problems.append({m_file, name, QStringLiteral("no such section")});
    }
}

void Check::keys(const QJsonObject& section, const QSet<QString>& names)
{
    for (const QString& key : section.keys()) {
        if (!names.contains(key))
            m_problems.append({m_file, key, QStringLiteral("no such key")});
    }
}

void Check::fields(const QJsonObject& section, const QSet<QString>& names)
{
    for (auto entry = section.begin(); entry != section.end(); ++entry) {
        for (const QString& field : entry->toObject().keys()) {
            if (!names.contains(field))
                m_problems.append(
                    {m_file, entry.key(), QStringLiteral("no such field \"%1\"").arg(field)});
        }
    }
}

} // namespace

void reportUnknown(const QString& folder, const Skin& substitute, QVector<SkinProblem>& problems)
{
    QFile file(folder + QStringLiteral("/skin.json"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject table = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject colours = table.value(QLatin1String("colours")).toObject();
    const QJsonObject fonts = table.value(QLatin1String("fonts")).toObject();
    const QJsonObject images = table.value(QLatin1String("images")).toObject();

    Check check(file.fileName(), problems);
    check.sections(table);
    check.keys(colours, known(SkinKeys::colours, substitute.colours));
    check.keys(fonts, known(SkinKeys::fonts, substitute.fonts));
    check.keys(images, known(SkinKeys::images, substitute.images));
    check.fields(
        fonts, {QStringLiteral("families"), QStringLiteral("pixelSize"), QStringLiteral("weight")});
    check.fields(images,
                 {QStringLiteral("file"), QStringLiteral("size"), QStringLiteral("frames")});
}

} // namespace CorvelSkin
