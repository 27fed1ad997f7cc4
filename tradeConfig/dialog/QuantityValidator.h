#pragma once

#include <QIntValidator>

class QLineEdit;
class QSpinBox;

/**
 * Accepts the empty text and decimal digits whose value lies within the range, nothing else.
 *
 * QIntValidator alone lets a number out of range be typed as long as it has no more digits than
 * the top, and signs and group separators anywhere; a text read back with toInt() would then
 * come out as zero or beyond the range. The bottom is expected not to be negative.
 *
 * Where a spin box has the focus, its unit may stand behind the digits, and its range holds too.
 */
class QuantityValidator : public QIntValidator {
    Q_OBJECT

public:
    QuantityValidator(int bottom, int top, QObject* parent);

    /// Makes this the validator of @p edit, also of the text that it shows already. While a line
    /// edit shows an invalid text, it lets the user type anything: see guard().
    void install(QLineEdit& edit) const;

    /// The same for a number that the user types. When the program has set a text out of range, the
    /// user can only take characters away from it, or replace all of it by a number in range.
    void guard(QLineEdit& edit) const;

    /// The same for the number that the user types into @p box. The unit stays where it is.
    void guard(QSpinBox& box);

    /// Intermediate: empty, or below the bottom, which another digit may change. Invalid: all that
    /// is not to be typed.
    State validate(QString& input, int& position) const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    State stateOf(const QString& number) const;
};
