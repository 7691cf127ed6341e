#pragma once

#include <QCoreApplication>
#include <QObject>

/// Marks what the host binds to; everything else of the plug-in stays hidden.
#if defined(VORN_BUILD)
#define VORN_EXPORT Q_DECL_EXPORT
#else
#define VORN_EXPORT Q_DECL_IMPORT
#endif

// The host binds to all of an exported class's meta-object, this function too, which Qt hides by itself.
#undef Q_DECL_HIDDEN_STATIC_METACALL
#define Q_DECL_HIDDEN_STATIC_METACALL

// And to its tr and trUtf8. Qt defines them inline, and inline functions stay hidden unless they are marked
// one by one, as they are here.
#undef QT_TR_FUNCTIONS
#define QT_TR_FUNCTIONS                                                                                      \
    VORN_TR_FUNCTION(tr, staticMetaObject.tr(text, disambiguation, n))                                       \
    QT_DEPRECATED VORN_TR_FUNCTION(trUtf8, staticMetaObject.tr(text, disambiguation, n))
#undef Q_DECLARE_TR_FUNCTIONS
#define Q_DECLARE_TR_FUNCTIONS(context)                                                                      \
public:                                                                                                      \
    VORN_TR_FUNCTION(tr, QCoreApplication::translate(#context, text, disambiguation, n))                     \
    QT_DEPRECATED VORN_TR_FUNCTION(trUtf8, QCoreApplication::translate(#context, text, disambiguation, n))   \
                                                                                                             \
        private:

#define VORN_TR_FUNCTION(name, result)                                                                       \
    VORN_EXPORT static inline QString name(const char* text, const char* disambiguation = nullptr,           \
                                           int n = -1) {                                                     \
        return result;                                                                                       \
    }

/// In a class's source: has the library hold its tr and trUtf8, called from there or not.
#define VORN_KEEP_TR(Class)                                                                                  \
    QT_WARNING_PUSH                                                                                          \
    QT_WARNING_DISABLE_DEPRECATED                                                                            \
    namespace {                                                                                              \
    [[gnu::used]] QString (*const keptTr[])(const char*, const char*, int) = {&Class::tr, &Class::trUtf8};   \
    }                                                                                                        \
    QT_WARNING_POP
