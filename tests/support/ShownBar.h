#pragma once

#include "tradeConfig/SwitchEx.h"

/// The visible window around a bar. Framed by nothing, so that the mouse is where a test says.
struct ShownParent {
    ShownParent()
    {
        shownParent.setWindowFlags(Qt::FramelessWindowHint);
        shownParent.resize(400, 400);
        shownParent.show();
    }
    QWidget shownParent;
};

/// A visible bar that frees its items. A resize reaches it at once, and rendering does not lay
/// it out anew, over what a test has placed: both would happen to a hidden one.
class ShownBar : public ShownParent, public CSwitchEx {
public:
    explicit ShownBar(Qt::Orientation direction, QSize size, QMargins margins = QMargins())
        : CSwitchEx(&shownParent, direction, margins)
    {
        resize(size);
        show();
    }
    ~ShownBar() override { ClearAll(); }
};
