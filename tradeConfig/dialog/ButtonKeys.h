#pragma once

#include <QObject>
#include <QVector>

class QPushButton;

/**
 * Return and Enter press the push button that has the focus, in every host: the toolkit does so
 * in a QDialog only, and there presses a button without the focus too, which would save or
 * throw away a trader's edits from any field.
 */
class ButtonKeys : public QObject {
    Q_OBJECT

public:
    explicit ButtonKeys(const QVector<QPushButton*>& buttons, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
