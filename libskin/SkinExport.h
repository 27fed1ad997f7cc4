#pragma once

#include <QtGlobal>

#if defined(SKIN_LIBRARY)
#define SKIN_EXPORT Q_DECL_EXPORT
#else
#define SKIN_EXPORT Q_DECL_IMPORT
#endif
