#include "tradeConfig/MarkShade.h"

#include "tradeConfig/ReadableColour.h"
#include "tradeConfig/SheetFont.h"

#include <QEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTextCharFormat>

MarkShade::MarkShade(QLineEdit& input)
    : QObject(&input)
    , m_input(input)
{
    input.installEventFilter(this);
}

MarkShade* MarkShade::of(QLineEdit& input)
{
    auto* const shade = input.findChild<MarkShade*>(QString(), Qt::FindDirectChildrenOnly);
    return shade ? shade : new MarkShade(input);
}

void MarkShade::prepare(QLineEdit& input) { of(input); }

void MarkShade::replaceSheet(QLineEdit& input, const QString& sheet)
{
    MarkShade* const shade = of(input);
    shade->m_replacing = true;
    SheetFont::keep(input, [&] { input.setStyleSheet(sheet); });
    shade->m_replacing = false;
    shade->apply();
}

void MarkShade::apply()
{
    const QPalette& palette = m_input.palette();
    QTextCharFormat format;
    format.setForeground(
        ReadableColour::on(palette.color(QPalette::Base), palette.color(QPalette::Text)));
    constexpr int longerThanAnyText = 1 << 20;
    QInputMethodEvent event(
        QString(),
        {{QInputMethodEvent::TextFormat, -m_input.cursorPosition(), longerThanAnyText, format}});
    const bool readOnly = m_input.isReadOnly();
    m_input.setReadOnly(false); // otherwise it takes no formats either
    m_input.event(&event);
    m_input.setReadOnly(readOnly);
}

bool MarkShade::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
        if (!m_replacing)
            apply();
        break;
    case QEvent::InputMethod:
        // Brings formats of its own, once it has arrived.
        QMetaObject::invokeMethod(this, &MarkShade::apply, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return false;
}
