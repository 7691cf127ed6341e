#include "BilingualTranslator.h"

QString BilingualTranslator::translate(const char* context, const char*, const char* disambiguation,
                                       int) const {
    // Qt's classes, and they alone, begin with a Q; their disambiguations are remarks for translators.
    const bool ownContext = context != nullptr && context[0] != 'Q';
    const bool bilingual = disambiguation != nullptr && disambiguation[0] != '\0';
    return ownContext && bilingual ? QString::fromUtf8(disambiguation) : QString();
}
