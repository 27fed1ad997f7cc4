#pragma once

#include <QCoreApplication>

/// Translates the texts that the dialog's units put into its form, in the form's own context.
struct FormText {
    Q_DECLARE_TR_FUNCTIONS(CTradeConfigWidget)
};
