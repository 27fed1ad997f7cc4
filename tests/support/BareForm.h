#pragma once

#include "ui_CTradeConfigWidget.h"

/// The dialog's form as designed, before the dialog fills it.
struct BareForm {
    BareForm() { ui.setupUi(&widget); }

    /// The control of that name, which must be there.
    template <typename Widget = QWidget> Widget& find(const char* name) const
    {
        return *widget.findChild<Widget*>(QString::fromLatin1(name));
    }

    QWidget widget;
    Ui_CTradeConfigWidget ui;
};
