#include "XlsxText.h"

#include "XlsxBudget.h"
#include "XlsxXml.h"

namespace XlsxText {

namespace {

constexpr int escapeLength = 7;
constexpr int hexadecimal = 16;

/// The character of the escape that begins at `at`; null if there is none.
QChar escapedAt(const QString& text, int at) {
    if (text.size() - at < escapeLength || text[at + 1] != 'x' || text[at + 6] != '_') {
        return {};
    }
    bool isCode = false;
    const QStringRef digits = text.midRef(at + 2, 4);
    const ushort code = digits.toUShort(&isCode, hexadecimal);
    const bool hasPrefix = digits.startsWith('+') || digits.contains('x', Qt::CaseInsensitive);
    return isCode && !hasPrefix ? QChar(code) : QChar();
}

/// The runs of the present element up to `most` characters, or some more; the rest is passed over.
QString joined(XlsxXml& xml, int most) {
    QString text(QLatin1String(""));
    while (xml.nextChild()) {
        const bool isText = xml.name() == QLatin1String("t");
        if (text.size() > most || (!isText && xml.name() != QLatin1String("r"))) {
            xml.skip();
            continue;
        }
        text += isText ? unescaped(xml.text()) : joined(xml, most);
    }
    return text;
}

} // namespace

QString unescaped(const QString& text) {
    int at = text.indexOf(QLatin1String("_x"));
    if (at < 0) {
        return text;
    }
    QString result;
    int taken = 0;
    for (; at >= 0; at = text.indexOf(QLatin1String("_x"), at)) {
        const QChar character = escapedAt(text, at);
        if (character.isNull()) {
            ++at;
            continue;
        }
        result += text.midRef(taken, at - taken);
        result += character;
        at += escapeLength;
        taken = at;
    }
    return result + text.midRef(taken);
}

QString read(XlsxXml& xml, XlsxBudget& budget) {
    return budget.cut(joined(xml, budget.limits().textLength));
}

} // namespace XlsxText
