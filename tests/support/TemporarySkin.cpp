#include "support/TemporarySkin.h"

#include "support/Files.h"

#include <QDir>
#include <QJsonDocument>
#include <QtTest>

namespace {

QString shippedFolder(const QString& name)
{
    return QStringLiteral(TRADECONFIG_SKINS_DIR "/") + name;
}

} // namespace

QJsonObject shippedSkinTable(const QString& name)
{
    const QByteArray table = contentOf(shippedFolder(name) + QStringLiteral("/skin.json"));
    if (table.isEmpty())
        QTest::qFail("a shipped skin has no table", __FILE__, __LINE__);
    return QJsonDocument::fromJson(table).object();
}

QFont shippedFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("PingFang SC"), QStringLiteral("PingFang TC"),
                      QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC"),
                      QStringLiteral("Source Han Sans SC"), QStringLiteral("sans-serif")});
    font.setPixelSize(13);
    return font;
}

TemporarySkin::TemporarySkin()
    : m_table(shippedSkinTable(QStringLiteral("light")))
{
    const QString images = shippedFolder(QStringLiteral("light")) + QStringLiteral("/images");
    QDir().mkpath(folder() + QStringLiteral("/images"));
    for (const QString& name : QDir(images).entryList(QDir::Files))
        QFile::copy(images + QLatin1Char('/') + name, file(QStringLiteral("images/") + name));
    saveTable();
}

void TemporarySkin::set(const QString& section, const QString& key, const QJsonValue& value)
{
    QJsonObject entries = m_table.value(section).toObject();
    if (value.isUndefined())
        entries.remove(key);
    else
        entries.insert(key, value);
    setSection(section, entries);
}

void TemporarySkin::setSection(const QString& section, const QJsonValue& value)
{
    m_table.insert(section, value);
    saveTable();
}

void TemporarySkin::write(const QString& name, const QByteArray& bytes) const
{
    writeFile(file(name), bytes);
}

void TemporarySkin::write(const QString& name, const QImage& image) const
{
    if (!image.save(file(name), "PNG"))
        QTest::qFail("an image of a test's skin cannot be written", __FILE__, __LINE__);
}

bool TemporarySkin::remove() { return m_directory.remove(); }

void TemporarySkin::saveTable() const
{
    write(QStringLiteral("skin.json"), QJsonDocument(m_table).toJson());
}
