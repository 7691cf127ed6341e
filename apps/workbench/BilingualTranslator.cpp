#include "BilingualTranslator.h"

namespace {

/// The toolkit's classes begin with a Q and another capital; their disambiguations are remarks for
/// translators. QualityCheck is one of ours.
bool isOfToolkit(const char* context) {
    return context[0] == 'Q' && context[1] >= 'A' && context[1] <= 'Z';
}

} // namespace

QString BilingualTranslator::translate(const char* context, const char*, const char* disambiguation,
                                       int) const {
    const bool ownContext = context != nullptr && !isOfToolkit(context);
    const bool bilingual = disambiguation != nullptr && disambiguation[0] != '\0';
    return ownContext && bilingual ? QString::fromUtf8(disambiguation) : QString();
}
