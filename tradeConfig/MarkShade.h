#pragma once

#include <QObject>

class QLineEdit;

/**
 * Keeps the text of a line edit readable whose style sheet says its colour: it is painted in a
 * shade of that colour that can be read on the field, whatever the palette becomes.
 *
 * Each time a line edit paints, it takes the colour from its style sheet and not from its palette.
 * The one thing that overrides that colour is a text format as input methods send it.
 */
class MarkShade : public QObject {
    Q_OBJECT
public:
    /// Gives @p input another style sheet. The font stays.
    static void replaceSheet(QLineEdit& input, const QString& sheet);

    /// To be called before, where the sheet is given while @p input's event filters run: one that
    /// joins them then has the others run twice.
    static void prepare(QLineEdit& input);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit MarkShade(QLineEdit& input);
    static MarkShade* of(QLineEdit& input);
    void apply();

    QLineEdit& m_input; ///< the parent
    bool m_replacing = false;
};
