#include "fuzz/events/Surroundings.h"

#include "appearance/SkinStyle.h"
#include "fuzz/FuzzInput.h"
#include "libskin/SkinLibrary.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QPixmapCache>

using CorvelSkin::SkinLibrary;

namespace {

constexpr const char* languages[] = {"zh_CN", "zh_TW", "en_US"};

constexpr const char* sheets[]
    = {"", "QLineEdit{color:blue}", "QWidget{font-size:15px}", "QComboBox{border:1px solid red}",
       "QPushButton:hover{background:yellow} QTableView{gridline-color:green}"};

void changeStyle(FuzzInput& input)
{
    switch (input.below(3)) {
    case 0:
        QApplication::setStyle(new SkinStyle);
        break;
    case 1:
        QApplication::setStyle(QStringLiteral("fusion"));
        break;
    default:
        QApplication::setStyle(QStringLiteral("windows"));
    }
}

} // namespace

Surroundings::Surroundings()
{
    MUST(m_traditional.load(QStringLiteral(":/translations/tradeConfig_zh_TW.qm")));
    MUST(m_english.load(QStringLiteral(":/translations/tradeConfig_en_US.qm")));
}

Surroundings::~Surroundings() { speak(0); }

int Surroundings::languageCount() { return int(std::size(languages)); }

QStringList Surroundings::skins() const { return SkinLibrary::instance()->names(); }

void Surroundings::reset(const QString& skin, int language)
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(new SkinStyle);
    QApplication::setFont(QFont());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    MUST(SkinLibrary::instance()->load(skin));
    QApplication::setPalette(SkinLibrary::instance()->palette());
    speak(language);
}

void Surroundings::speak(int language)
{
    QLocale::setDefault(QLocale(QLatin1String(languages[language])));
    QCoreApplication::removeTranslator(&m_traditional);
    QCoreApplication::removeTranslator(&m_english);
    if (language == 1)
        QCoreApplication::installTranslator(&m_traditional);
    else if (language == 2)
        QCoreApplication::installTranslator(&m_english);
}

void Surroundings::change(FuzzInput& input)
{
    switch (input.below(8)) {
    case 0:
        changeStyle(input);
        break;
    case 1:
        qApp->setStyleSheet(
            QLatin1String(sheets[input.flag() ? 0 : input.below(int(std::size(sheets)))]));
        break;
    case 2: {
        QFont font = QApplication::font();
        font.setPointSize(6 + input.below(20));
        font.setBold(input.flag());
        QApplication::setFont(font);
        break;
    }
    case 3:
        QGuiApplication::setLayoutDirection(input.flag() ? Qt::LeftToRight : Qt::RightToLeft);
        break;
    case 4:
        QPixmapCache::clear();
        break;
    case 5:
        speak(input.below(languageCount()));
        break;
    default: {
        const QStringList names = skins();
        const int choice = input.below(names.size() * 4 + 1);
        SkinLibrary::instance()->load(choice < names.size() * 4 ? names.at(choice % names.size())
                                                                : QStringLiteral("no such skin"));
    }
    }
}
