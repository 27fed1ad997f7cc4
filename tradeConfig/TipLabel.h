#pragma once

#include <QLabel>
#include <QString>

/**
 * A short hint in red (an error) or green (a correct value) that can fade away by itself.
 */
class CTipLabel : public QLabel {
    Q_OBJECT

public:
    /// A label of 160 by 20 pixels. Its colour is chosen here and stays; it is painted in a shade
    /// that can be read on the window.
    CTipLabel(const QString& text, bool isError, QWidget* parent);

    /// Replaces the text; neither shows nor hides the label.
    void SetMessageLabel(const QString& text);

    /// Starts a fade: fully opaque for 1500 ms, transparent and hidden after 2500 ms. Each call
    /// starts one of its own; the latest alone rules the opacity, but every one hides the label
    /// at its end.
    void SetAutoHide();

protected:
    void paintEvent(QPaintEvent* event) override;
};
