#pragma once

#include <QMenu>
#include <QVector>
#include <QWidget>

class CCaptionBar;
class CImageButton;
class CNavWidget;
class CSwitchEx;
class CTableLineEdit;
class CTipLabel;
class CWrapLabel;
class FuzzInput;
class QLineEdit;

/// A frameless window with every widget of the kit in use: a switch bar in each mode and direction,
/// lists, buttons, captions, cells and hints.
class KitWindow : public QWidget {
public:
    KitWindow();
    ~KitWindow() override;

    /// Does to one of the widgets what the code of a host may do.
    void operate(FuzzInput& input);
    /// Brings up a message box and waits for its end.
    void ask(FuzzInput& input);

private:
    void fill(CSwitchEx& bar);
    void operateBar(FuzzInput& input);
    void operateButton(FuzzInput& input);
    void operateCaption(FuzzInput& input);

    QMenu m_menu;
    QVector<CSwitchEx*> m_bars;
    QVector<CImageButton*> m_buttons;
    CCaptionBar* m_caption;
    CNavWidget* m_list;
    CTableLineEdit* m_cell;
    QLineEdit* m_marked;
    CTipLabel* m_tip;
    CWrapLabel* m_wrapped;
};
