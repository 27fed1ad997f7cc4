#pragma once

#include <QFont>
#include <QImage>
#include <QJsonObject>
#include <QTemporaryDir>

/// A skin folder of a test's own: a copy of the shipped light skin to be changed at will.
class TemporarySkin {
public:
    TemporarySkin();

    QString folder() const { return m_directory.path() + QStringLiteral("/skin"); }
    QString file(const QString& name) const { return folder() + QLatin1Char('/') + name; }

    /// Sets one entry of a section of the table; an undefined value removes it.
    void set(const QString& section, const QString& key, const QJsonValue& value);
    void setSection(const QString& section, const QJsonValue& value);
    void write(const QString& name, const QByteArray& bytes) const;
    void write(const QString& name, const QImage& image) const;
    bool remove();

private:
    void saveTable() const;

    QTemporaryDir m_directory;
    QJsonObject m_table;
};

/// The table of a shipped skin as it stands in the source tree.
QJsonObject shippedSkinTable(const QString& name);

/// The font of both shipped skins; of normal weight, which not all of its keys have.
QFont shippedFont();
