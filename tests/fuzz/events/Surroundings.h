#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

class FuzzInput;

/// What surrounds the windows: skin, language, style, fonts, colours, direction.
class Surroundings {
public:
    Surroundings();
    ~Surroundings();
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    static int languageCount();
    QStringList skins() const;

    /// As the client starts, in that skin and language.
    void reset(const QString& skin, int language);
    /// Changes one of them.
    void change(FuzzInput& input);

private:
    void speak(int language);

    QTranslator m_traditional;
    QTranslator m_english;
};
