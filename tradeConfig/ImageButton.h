#pragma once

#include <QPushButton>
#include <QString>

/**
 * A push button drawn from bitmaps of the skin, optionally with its text over them.
 *
 * Either one strip holds the frames of all states side by side (normal, mouse over, pressed,
 * disabled, as many as there are), or each state has an image of its own. Until one of the two
 * setters is called the button paints nothing.
 */
class CImageButton : public QPushButton {
    Q_OBJECT

public:
    explicit CImageButton(QWidget* parent);

    /// Takes all states from the strip @p image of @p frames (1..4) equal frames. The options
    /// belong to the skin service and are passed on to it.
    void setSingleImage(const QString& image, int frames, bool firstOptionOn, bool secondOptionOn);

    /// Takes each state from an image of its own. @p normal must not be empty. An empty hover or
    /// disabled image stands for the normal one, an empty pressed image for the hover one.
    void setImage(const QString& normal, const QString& hover, const QString& whilePressed,
                  const QString& disabled);

    /// Moves the left edge of the text's rectangle right by @p indent pixels.
    void setTextIndent(int indent);

    /// Whether the button's text is drawn over the image.
    void setShowText(bool show);

public Q_SLOTS:
    void onPressed();
    void onReleased();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    static constexpr int noImage = 0;
    static constexpr int separateImages = 5;

    int imageMode = noImage; ///< 1..4: one strip of that many frames
    QString normalImage; ///< the strip in modes 1..4
    QString hoverImage;
    QString pressedImage;
    QString disabledImage;
    bool pressed = false; ///< between the signals pressed() and released()
    bool hovered = false;
    bool firstOption = false;
    bool secondOption = false;
    int textIndent = 0; ///< pixels
    bool showText = false;

private:
    int stripFrame() const;
    const QString& stateImage() const;
};
