#include "TemporarySkin.h"

#include <QDir>
#include <QFile>
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
    QFile file(shippedFolder(name) + QStringLiteral("/skin.json"));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("a shipped skin has no table", __FILE__, __LINE__);
    return QJsonDocument::fromJson(file.readAll()).object();
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
    QFile output(file(name));
    if (!output.open(QIODevice::WriteOnly) || output.write(bytes) != bytes.size())
        QTest::qFail("a file of a test's skin cannot be written", __FILE__, __LINE__);
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
