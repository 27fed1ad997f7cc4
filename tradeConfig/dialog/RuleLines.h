#pragma once

#include <QObject>

#include <initializer_list>

class QWidget;

/**
 * Paints the rules of the form, which are one pixel high.
 *
 * Styles draw two edges of a sunken line. Only the light one falls into the pixel, where it is
 * hardly seen, and between whole-numbered scales it falls beside it and is not drawn at all. A rule
 * is filled instead, in a colour between its window's and that of the text.
 */
class RuleLines : public QObject {
    Q_OBJECT
public:
    /// From now on paints @p rules.
    RuleLines(std::initializer_list<QWidget*> rules, QObject* owner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
