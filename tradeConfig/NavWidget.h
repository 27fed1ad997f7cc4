#pragma once

#include <QStringList>
#include <QWidget>

/**
 * The list of page names beside a stack of pages: bands of 50 pixels, one of them selected.
 *
 * Only a press selects; the owner follows signal_onclicked() and cannot set the selection.
 * Everything is painted by the skin service; the selected band and the last column of pixels
 * stay unpainted, so that the parent's background shows there.
 */
class CNavWidget : public QWidget {
    Q_OBJECT

public:
    explicit CNavWidget(QWidget* parent = nullptr);

    /// Replaces the entries. Neither repaints nor touches the selected and the highlighted index.
    void SetBtnList(QStringList list);

Q_SIGNALS:
    /// After every press on an entry, also on the selected one. @p index counts from 0.
    void signal_onclicked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

    QStringList items; ///< the entries, top to bottom
    int count = 0; ///< of items
    int selected = 0; ///< index of the selected entry
    int hover = 0; ///< index of the highlighted entry; selected while the mouse is outside

private:
    friend class NavWidgetAccessible;

    int entryAt(int y) const;
    QRectF entryRect(int index) const;
    void press(int index);

    int m_fillings = 0; // how often all entries were replaced
};
