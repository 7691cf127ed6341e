#pragma once

#include <QObject>

// The host binds to all of an exported class's meta-object, this function too, which Qt hides by itself.
#undef Q_DECL_HIDDEN_STATIC_METACALL
#define Q_DECL_HIDDEN_STATIC_METACALL

/// Marks what the host binds to; everything else of the plug-in stays hidden.
#if defined(VORN_BUILD)
#define VORN_EXPORT Q_DECL_EXPORT
#else
#define VORN_EXPORT Q_DECL_IMPORT
#endif
