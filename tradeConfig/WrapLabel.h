#pragma once

#include <QLabel>

/**
 * A label of plain, word-wrapped text that breaks inside a word rather than grow without limit.
 *
 * QLabel wraps its text at 80 average characters but becomes as wide as its widest word. This
 * label is a QLabel to the pixel until a word is wider than that; then the words that do not fit
 * are broken wherever the line ends. The text itself stays as it was given.
 */
class CWrapLabel : public QLabel {
    Q_OBJECT

public:
    explicit CWrapLabel(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int widestLine() const;
    bool hasWordTooWide() const;
};
