#include "MessageText.h"

#include <QStringList>

namespace {

constexpr int deepest = 8;

QString shortened(const QString& message) {
    if (message.size() <= MessageText::maxLength) {
        return message;
    }
    const int end =
        MessageText::maxLength - (message.at(MessageText::maxLength - 1).isHighSurrogate() ? 1 : 0);
    return message.left(end) + QChar(0x2026);
}

} // namespace

MessageText::MessageText(const QString& message) {
    const QString text = shortened(message);
    int at = 0;
    while (at < text.size()) {
        int taken = takeTag(text, at);
        if (taken == 0) {
            taken = takeReference(text, at);
        }
        if (taken == 0) {
            takeCharacter(text.at(at));
            taken = 1;
        }
        at += taken;
    }
    while (!m_open.isEmpty()) {
        toggle(m_open.back(), false);
    }
}

// Each of these returns how many characters it took, 0 if it is none of its kind.
int MessageText::takeTag(const QString& message, int at) {
    static const QStringList lineBreaks{QStringLiteral("<br>"), QStringLiteral("<br/>"),
                                        QStringLiteral("<br />")};
    if (message.at(at) != QLatin1Char('<')) {
        return 0;
    }
    const QStringRef rest = message.midRef(at, 6);
    for (const QString& lineBreak : lineBreaks) {
        if (rest.startsWith(lineBreak, Qt::CaseInsensitive)) {
            breakLine();
            return lineBreak.size();
        }
    }
    for (const QChar element : {QLatin1Char('b'), QLatin1Char('i')}) {
        const QString end = QStringLiteral("</%1>").arg(element);
        const QString start = QStringLiteral("<%1>").arg(element);
        if (rest.startsWith(start, Qt::CaseInsensitive) && toggle(element, true)) {
            return start.size();
        }
        if (rest.startsWith(end, Qt::CaseInsensitive) && toggle(element, false)) {
            return end.size();
        }
    }
    return 0;
}

int MessageText::takeReference(const QString& message, int at) {
    struct Reference {
        QLatin1String name;
        QChar character;
    };
    static const Reference references[] = {{QLatin1String("&amp;"), QLatin1Char('&')},
                                           {QLatin1String("&lt;"), QLatin1Char('<')},
                                           {QLatin1String("&gt;"), QLatin1Char('>')},
                                           {QLatin1String("&quot;"), QLatin1Char('"')}};
    for (const Reference& reference : references) {
        if (message.midRef(at, reference.name.size()) == reference.name) {
            add(reference.character);
            return reference.name.size();
        }
    }
    return 0;
}

void MessageText::takeCharacter(QChar character) {
    if (character == QLatin1Char('\r')) {
        return; // its line feed follows
    }
    if (character == QLatin1Char('\n')) {
        breakLine();
        return;
    }
    const bool control = character.category() == QChar::Other_Control && character != QLatin1Char('\t');
    add(control ? QChar(QChar::ReplacementCharacter) : character);
}

void MessageText::add(const QString& text) {
    m_rich += text.toHtmlEscaped();
    m_plain += text;
}

void MessageText::breakLine() {
    m_rich += QLatin1String("<br>");
    m_plain += QLatin1Char('\n');
}

bool MessageText::toggle(QChar element, bool opens) {
    if (opens ? m_open.size() == deepest : !m_open.endsWith(element)) {
        return false;
    }
    if (opens) {
        m_open += element;
    } else {
        m_open.chop(1);
    }
    m_rich += QStringLiteral("<%1%2>").arg(opens ? QString() : QStringLiteral("/"), element);
    return true;
}
