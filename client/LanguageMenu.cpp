#include "client/LanguageMenu.h"

#include "client/DataDirectory.h"
#include "client/RestartOffer.h"
#include "client/StartSettings.h"

#include <QAction>
#include <QActionGroup>
#include <QMessageBox>

namespace {

struct Language {
    const char* code; ///< as stored
    const char* name; ///< in itself
};

// In the record's order.
constexpr Language languages[] = {
    {"zh_CN", "简体中文"},
    {"zh_TW", "繁體中文"},
    {"en_US", "English"},
};

} // namespace

LanguageMenu::LanguageMenu(const DataDirectory& directory, QWidget* parent)
    //: Understood in every language, so that somebody who chose a wrong one finds back.
    : QMenu(tr("语言 Language(&L)"), parent)
    , m_directory(directory)
{
    auto* const group = new QActionGroup(this);
    for (const Language& language : languages) {
        const int index = int(&language - languages);
        QAction* const action = addAction(QString::fromUtf8(language.name));
        action->setObjectName(QStringLiteral("action_language_") + QLatin1String(language.code));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, index] { choose(index); });
    }
    connect(this, &QMenu::aboutToShow, this, &LanguageMenu::markStored);
    markStored();
}

// The settings dialog writes the same file.
void LanguageMenu::markStored()
{
    const QString stored = StartSettings::read(m_directory).language;
    for (const Language& language : languages)
        actions()
            .at(int(&language - languages))
            ->setChecked(stored == QLatin1String(language.code));
}

void LanguageMenu::choose(int index)
{
    const QString code = QLatin1String(languages[index].code);
    if (code == StartSettings::read(m_directory).language)
        return;
    const QString failure = StartSettings::keepLanguage(m_directory, code);
    markStored();
    if (!failure.isEmpty()) {
        QMessageBox::critical(parentWidget(), tr("交易客户端"), failure);
        return;
    }
    Q_EMIT chosen(index);
    RestartOffer::make(parentWidget(), m_directory);
}
