#include "TPlainTip.h"

QString TPlainTip::of(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    QString shown = text.toHtmlEscaped();
    shown.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QLatin1String("<span>") + shown + QLatin1String("</span>");
}
