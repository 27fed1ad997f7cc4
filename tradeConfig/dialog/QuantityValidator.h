#pragma once

#include <QIntValidator>

class QLineEdit;

/**
 * Accepts the empty text and decimal digits whose value lies within the range, nothing else.
 *
 * QIntValidator alone lets a number out of range be typed as long as it has no more digits than
 * the top, and signs and group separators anywhere; a text read back with toInt() would then
 * come out as zero or beyond the range. The bottom is expected not to be negative.
 */
class QuantityValidator : public QIntValidator {
    Q_OBJECT

public:
    QuantityValidator(int bottom, int top, QObject* parent);

    /// Makes this the validator of @p edit, also of the text that it shows already. A line edit
    /// that shows an invalid text takes any other, too.
    void install(QLineEdit& edit) const;

    /// The same for a number that the user types: from a text out of range, which the program may
    /// set, he can only take characters, or put a number in range in its place.
    void guard(QLineEdit& edit) const;

    /// Intermediate: empty, or below the bottom, which another digit may change. Invalid: all that
    /// is not to be typed.
    State validate(QString& input, int& position) const override;
};
