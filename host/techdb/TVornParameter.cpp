#include "TVornParameter.h"

QStringList TVornParameter::synonyms() const {
    return value("synonyms").split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void TVornParameter::setSynonyms(const QStringList& names) {
    set("synonyms", names.join(QLatin1Char('\n')));
}
