#include "tradeConfig/dialog/RuleLines.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace {

constexpr double textShare = 0.2;

QColor between(const QColor& window, const QColor& text)
{
    const auto part = [](int from, int to) { return qRound(from + (to - from) * textShare); };
    return QColor(part(window.red(), text.red()), part(window.green(), text.green()),
                  part(window.blue(), text.blue()));
}

} // namespace

RuleLines::RuleLines(std::initializer_list<QWidget*> rules, QObject* owner)
    : QObject(owner)
{
    for (QWidget* const rule : rules)
        rule->installEventFilter(this);
}

bool RuleLines::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint)
        return false;
    auto* const rule = static_cast<QWidget*>(watched);
    const QPalette& palette = rule->palette();
    QPainter(rule).fillRect(
        rule->rect(),
        between(palette.color(QPalette::Window), palette.color(QPalette::WindowText)));
    return true;
}
