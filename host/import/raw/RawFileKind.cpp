#include "RawFileKind.h"

namespace RawFileKind {

Kind ofName(const QString& name) {
    if (name.endsWith(QLatin1String(".S00"), Qt::CaseInsensitive)) {
        return Kind::Signal;
    }
    return name.endsWith(QLatin1String(".R00"), Qt::CaseInsensitive) ? Kind::Results : Kind::Other;
}

bool looksRaw(const QByteArray& head) {
    if (head.contains('\0')) {
        return false;
    }
    bool atStart = true;
    for (const char letter : head) {
        if (letter == '[' && atStart) {
            return true;
        }
        // Blanks and a byte-order mark may stand before the bracket.
        const bool passedOver =
            letter == ' ' || letter == '\t' || letter == '\xEF' || letter == '\xBB' || letter == '\xBF';
        atStart = letter == '\n' || letter == '\r' || (atStart && passedOver);
    }
    return false;
}

} // namespace RawFileKind
