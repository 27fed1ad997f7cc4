#pragma once

#include <QPoint>
#include <QWidget>

class CImageButton;
class QHBoxLayout;
class QLabel;
class QLayoutItem;

/**
 * The title row of a frameless window: logo, title, minimise, maximise and close buttons.
 *
 * The window's flags at construction decide which of them there are: each part that its hint
 * does not ask for is null. The user drags the window by the bar, and maximises or restores it
 * with a double click if there is a maximise button.
 */
class CCaptionBar : public QWidget {
    Q_OBJECT

public:
    /// Builds the bar for the window of @p parent.
    explicit CCaptionBar(QWidget* parent);

    /// Whether the bar paints a background; on after construction.
    void setFrameEnabled(bool enabled);

    /// Shows or hides the title, if there is one.
    void setTitleEnabled(bool enabled);

    /// Sets the shown title (UTF-8), if there is one. The window's next change of title wins.
    void setTitle(const char* title);

    /// Appends @p widget behind the window buttons and takes it as a child. Does nothing for a
    /// widget that is a child of this bar already. One that expands gets what the title leaves.
    void addCaptionWidget(QWidget* widget);

    /// Appends @p item behind the window buttons and takes ownership of it.
    void addCaptionItem(QLayoutItem* item);

public Q_SLOTS:
    void clickMinimize();
    void clickMaximize();

    /// Rejects a modal dialog, closes any other window.
    void clickClose();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    CImageButton* logoButton = nullptr;
    QLabel* titleLabel = nullptr;
    QHBoxLayout* buttonLayout = nullptr;
    CImageButton* minimizeButton = nullptr;
    CImageButton* maximizeButton = nullptr;
    CImageButton* closeButton = nullptr;
    bool frameEnabled = true;
    bool isDialog = false; ///< the window has every bit of Qt::Dialog
    QPoint dragOffset; ///< pointer minus window position while a drag is possible, else null

private:
    void addLogo(QHBoxLayout* row);
    void addTitle(QHBoxLayout* row);
    void fitTitle();
    CImageButton* addWindowButton(void (CCaptionBar::*onClicked)());
    void showMaximizeState();
};
