#pragma once

#include <QtGlobal>

namespace KivoTrade {
class ITrade;
}

/**
 * The module's entry point, resolved by its unmangled name.
 *
 * Makes the settings dialog (a parentless CTradeConfigWidget, hence a QWidget) on @p trade, which
 * must not be null and must outlive the dialog. The caller owns the dialog and deletes it. To be
 * called on the GUI thread; exceptions of the construction pass through.
 */
extern "C" Q_DECL_EXPORT void* CreateModuleWidget(KivoTrade::ITrade* trade);
