#include "ExcelFormat.h"

#include <algorithm>

namespace ExcelFormat {

namespace {

struct BuiltIn {
    int first;
    int last;
    Kind kind;
};

// Those up to 47 hold everywhere; the later ones are the East Asian and Thai calendars.
constexpr BuiltIn builtIns[] = {
    {14, 17, Kind::Date}, {18, 21, Kind::Time},     {22, 22, Kind::DateTime}, {27, 31, Kind::Date},
    {32, 35, Kind::Time}, {36, 36, Kind::Date},     {45, 45, Kind::Time},     {46, 46, Kind::Duration},
    {47, 47, Kind::Time}, {50, 54, Kind::Date},     {55, 56, Kind::Time},     {57, 58, Kind::Date},
    {71, 74, Kind::Date}, {75, 76, Kind::Time},     {77, 77, Kind::DateTime}, {78, 78, Kind::Time},
    {80, 80, Kind::Time}, {79, 79, Kind::Duration}, {81, 81, Kind::Date},
};

/// Reads one section of a format from left to right.
class Scan {
public:
    explicit Scan(const QString& code) : m_code(code) {}

    Kind kind() {
        while (m_at < m_code.size() && m_code[m_at] != ';') {
            take();
        }
        if (m_isNumber) {
            return Kind::Number;
        }
        if (m_counts) {
            return Kind::Duration;
        }
        const bool isDate = m_hasDate || (m_hasMonthOrMinute && !m_hasTime);
        if (isDate && m_hasTime) {
            return Kind::DateTime;
        }
        return isDate ? Kind::Date : m_hasTime ? Kind::Time : Kind::Number;
    }

private:
    void take() {
        const QChar c = m_code[m_at].toLower();
        switch (c.unicode()) {
        case '"':
            skipTo('"');
            break;
        case '[':
            takeBrackets();
            break;
        case '\\': // the next character as it stands
        case '_':  // a gap as wide as the next character
        case '*':  // the next character, repeated
            m_at += 2;
            break;
        case '0':
        case '#':
        case '?':
        case '%':
        case '@':
            takeDigit();
            break;
        default:
            takeLetter(c);
        }
    }

    void skipTo(QChar end) {
        const int found = m_code.indexOf(end, m_at + 1);
        m_at = found < 0 ? m_code.size() : found + 1;
    }

    // A colour, a condition, a language, or a unit that counts on
    void takeBrackets() {
        const int begin = m_at + 1;
        skipTo(']');
        const QString inside = m_code.mid(begin, m_at - begin - 1).toLower();
        const bool isUnit = inside == QString(inside.size(), 'h') || inside == QString(inside.size(), 'm') ||
                            inside == QString(inside.size(), 's');
        m_counts = m_counts || (isUnit && !inside.isEmpty());
    }

    // Seconds may have decimals, ss.00; no other digits stand in a date.
    void takeDigit() {
        const int end = m_at;
        while (m_at < m_code.size() && m_code[m_at] == '0') {
            ++m_at;
        }
        const bool isFraction = m_at > end && end >= 2 &&
                                (m_code[end - 1] == '.' || m_code[end - 1] == ',') &&
                                QStringLiteral("sS]").contains(m_code[end - 2]);
        m_isNumber = m_isNumber || !isFraction;
        m_at = std::max(m_at, end + 1);
    }

    void takeLetter(QChar c) {
        if (startsWith(QLatin1String("general"))) {
            m_isNumber = true;
            m_at += 7;
            return;
        }
        if (startsWith(QLatin1String("am/pm")) || startsWith(QLatin1String("a/p"))) {
            m_hasTime = true;
            m_at += c == 'a' && startsWith(QLatin1String("am")) ? 5 : 3;
            return;
        }
        int count = 1;
        while (m_at + count < m_code.size() && m_code[m_at + count].toLower() == c) {
            ++count;
        }
        m_at += count;
        count == 1 && c == 'e' ? takeExponent() : takeUnit(c, count);
    }

    // E+00 in a number; alone it is the year of the era
    void takeExponent() {
        const QChar next = m_at < m_code.size() ? m_code[m_at] : QChar();
        const bool isExponent = next == '+' || next == '-';
        m_isNumber = m_isNumber || isExponent;
        m_hasDate = m_hasDate || !isExponent;
    }

    void takeUnit(QChar c, int count) {
        switch (c.unicode()) {
        case 'h':
        case 's':
            m_hasTime = true;
            break;
        case 'm': // minutes beside hours or seconds, else the month; its name has three letters and more
            m_hasMonthOrMinute = true;
            m_hasDate = m_hasDate || count > 2;
            break;
        case 'y':
        case 'd':
        case 'e': // years of the era and of Buddha, weekdays
        case 'b':
        case 'a':
            m_hasDate = true;
            break;
        default:
            break;
        }
    }

    bool startsWith(QLatin1String word) const {
        return m_code.midRef(m_at, word.size()).compare(word, Qt::CaseInsensitive) == 0;
    }

    const QString& m_code;
    int m_at = 0;
    bool m_isNumber = false;
    bool m_counts = false;
    bool m_hasDate = false;
    bool m_hasTime = false;
    bool m_hasMonthOrMinute = false;
};

} // namespace

Kind kindOf(int builtinId) {
    const auto* const found =
        std::find_if(std::begin(builtIns), std::end(builtIns), [builtinId](const BuiltIn& range) {
            return range.first <= builtinId && builtinId <= range.last;
        });
    return found == std::end(builtIns) ? Kind::Number : found->kind;
}

Kind kindOf(const QString& code) {
    return Scan(code).kind();
}

} // namespace ExcelFormat
