#pragma once

#include <QMargins>
#include <QRectF>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class QMenu;
struct SwitchLook;

extern const QString SWITCH_ARROW_LEFT; ///< "◀"
extern const QString SWITCH_ARROW_RIGHT; ///< "▶"
extern const QString SWITCH_ARROW_UP; ///< "▲"
extern const QString SWITCH_ARROW_DOWN; ///< "▼"

/// One item of a switch bar. The bar that made it owns it.
struct SwitchItem {
    QString label; ///< the text; also what the Modify operations search for
    QString image; ///< image key while not selected; image items only
    QString selImage; ///< image key while selected; image items only
    QRectF rect; ///< the cell, in the bar's coordinates, padding included
    bool isSeparator = false;
    bool isImage = false;
    QMenu* menu = nullptr; ///< dropped down in place of the action; not owned; may be null
    std::function<void()> callback; ///< what a click runs; may be empty
};

/**
 * A strip of items (tabs, buttons, images, separators) of which one is selected.
 *
 * A press with the left button selects an item, the release over it runs its action or drops
 * down its menu. Items that do not fit scroll one at a time behind a pair of scroll buttons.
 * All sizes are in logical pixels; the extent of an item is its width in a horizontal bar and
 * its height in a vertical one. Everything is painted by the skin service.
 *
 * The bar owns its items, but only ClearAll() frees them: whoever drops a bar calls it first.
 */
class CSwitchEx : public QWidget {
    Q_OBJECT

public:
    enum SwitchMode : int {
        ModeSwitch = 1, ///< all items share the bar equally
        ModeButton = 2,
        ModeFlatButton = 3,
        ModeFlatBlue = 4,
        ModeIKButton = 5,
        ModeImageButton = 6,
        ModeNavButton = 7,
    };

    /// @p padding surrounds the content of every item: measuring adds it, painting removes it.
    explicit CSwitchEx(QWidget* parent = nullptr, Qt::Orientation orientation = Qt::Horizontal,
                       QMargins padding = QMargins());

    /// Lays out and repaints; the items keep their sizes.
    void changeMode(CSwitchEx::SwitchMode mode);

    /// The extent of text items added from now on; 0 measures them. The items already there are
    /// measured anew by their content.
    void setItemSize(int size);

    /// Lays out and repaints; the items keep their sizes.
    void setOrientation(Qt::Orientation orientation);

    /// Whether the bar's background takes its own colour or that of the frame around it.
    void setBackgroundColorEnable(bool enable);

    /// Measures all items anew.
    void SetPadding(QMarginsF padding);

    /// Adds a text item; at the far end (right or bottom, the first added outermost) if
    /// @p atEnd. The returned item stays the bar's. @p menu is not owned and may be null.
    SwitchItem* AddNormalSwitch(const QString& label, std::function<void()> callback = {},
                                bool atEnd = false, QMenu* menu = nullptr);

    /// Adds an item that shows one of two images of the skin.
    SwitchItem* AddImageSwitch(const QString& label, const QString& image, const QString& selImage,
                               std::function<void()> callback = {}, bool atEnd = false);

    /// Adds a separator of @p thickness pixels. A press does not select it; SetCurSel() does.
    SwitchItem* AddSeparator(int thickness, bool atEnd = false);

    /// Gives the first item labelled @p oldLabel (main items before end items) a new label and
    /// action. Its size stays. False if there is none.
    bool ModifySwitch(const QString& oldLabel, const QString& newLabel,
                      std::function<void()> callback);

    /// The same, with new image keys.
    bool ModifyImageSwitch(const QString& oldLabel, const QString& newLabel, const QString& image,
                           const QString& selImage, std::function<void()> callback);

    /// Relabels @p item; its size stays. Does nothing for an item that is not of this bar.
    void SetItemLabel(SwitchItem* item, const QString& label);

    /// Frees all items; every SwitchItem pointer of this bar becomes invalid.
    void ClearAll();

    /// The selected item, or null. Its label goes to @p label, which stays as it is for null.
    SwitchItem* GetCurSel(QString& label) const;

    /// Selects @p item and, if @p notify, runs its action or drops down its menu. Does nothing
    /// for an item that is not of this bar.
    void SetCurSel(SwitchItem* item, bool notify);

    /// The length along the bar that shows the longest main item between scroll buttons and end
    /// items.
    double GetMinimumSize() const;

    /// The length along the bar that shows all items.
    double GetMaximumSize() const;

protected:
    void ReCalcItemSize();
    QSizeF CalcItemSize(SwitchItem* item);
    void ReLayout();
    void ReLayoutSwitch();
    void ReLayoutShowAll();
    void ReLayoutMoreButton();

    /// The item at @p point, or null. With @p click a scroll button at that place is pressed.
    SwitchItem* HitTest(QPointF point, bool click);
    void DoClickItem();
    void DoClickMoreItem(bool back);

    void DrawBackground(QPainter& painter);
    void DrawMoreButton(QPainter& painter);
    void DrawItem(QPainter& painter, SwitchItem* item);
    void DrawSeparator(QPainter& painter, SwitchItem* item);
    void DrawSwith(QPainter& painter, SwitchItem* item);
    void DrawButton(QPainter& painter, SwitchItem* item);
    void DrawFlatButton(QPainter& painter, SwitchItem* item);
    void DrawFlatBlue(QPainter& painter, SwitchItem* item);
    void DrawModeIKButton(QPainter& painter, SwitchItem* item);
    void DrawImageButton(QPainter& painter, SwitchItem* item);
    void DrawNavButton(QPainter& painter, SwitchItem* item);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    QVector<SwitchItem*> items; ///< laid out from the left or top
    QVector<SwitchItem*> endItems; ///< laid out from the right or bottom, inwards
    int firstIndex = 0; ///< the first main item shown
    int visibleCount = 0; ///< main items shown from firstIndex on
    int itemSize = 0;
    SwitchItem* hoverItem = nullptr;
    SwitchItem* curSel = nullptr;
    SwitchMode mode = ModeButton;
    Qt::Orientation orientation;
    bool moreShown = false; ///< the scroll buttons are shown
    QRectF moreRect; ///< where the scroll buttons are
    QMarginsF padding;
    bool backgroundEnable = true;

private:
    friend class SwitchExAccessible;

    SwitchItem* append(std::unique_ptr<SwitchItem> item, bool atEnd);
    SwitchItem* findLabel(const QString& label) const;
    bool owns(SwitchItem* item) const;
    void select(SwitchItem* item);

    // Items as assistive technology counts them: the main ones, then the end items from the
    // innermost outwards, as they stand on the screen.
    int partCount() const;
    int partIndex(SwitchItem* item) const;
    SwitchItem* part(int index) const;

    double packEndItems();
    void drawLook(QPainter& painter, const SwitchItem& item, const SwitchLook& look);

    int m_clearings = 0; // how often all items were replaced
};
