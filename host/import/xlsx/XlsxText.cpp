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

/// Adds the text runs among the children of the present element, or passes over them once `text` is longer
/// than `most`. Gives `other` the children that are no text.
template <class Other>
void addTexts(XlsxXml& xml, QString& text, int most, const Other& other) {
    while (xml.nextChild()) {
        if (xml.name() != QLatin1String("t")) {
            other();
        } else if (text.size() > most) {
            xml.skip();
        } else {
            text += unescaped(xml.text());
        }
    }
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
    QString text(QLatin1String(""));
    const int most = budget.limits().textLength;
    const auto pass = [&xml] { xml.skip(); };
    addTexts(xml, text, most, [&] {
        const bool isRun = xml.name() == QLatin1String("r");
        isRun ? addTexts(xml, text, most, pass) : pass();
    });
    return budget.cut(text);
}

} // namespace XlsxText
