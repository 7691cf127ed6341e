#include "NumberText.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int longestText = 64;
constexpr int group = 3;
constexpr int exactDigits = 15;

bool isDigit(QChar character) {
    return character >= '0' && character <= '9';
}

bool isBlank(QChar character) {
    constexpr ushort fixedBlank = 0x00A0;
    constexpr ushort thinBlank = 0x2009;
    constexpr ushort narrowFixedBlank = 0x202F;
    const ushort code = character.unicode();
    return code == ' ' || code == fixedBlank || code == thinBlank || code == narrowFixedBlank;
}

QChar other(QChar mark) {
    return mark == ',' ? '.' : ',';
}

/// Reads a text once from its start, writing the number as C++ has it. Tables hold many: nothing is
/// allocated.
class NumberReader {
public:
    NumberReader(const QString& text, QChar mark) : m_text(text), m_mark(mark) {}

    bool read() {
        readSign();
        readWhole();
        const bool hasFraction = readFraction();
        const bool hasExponent = readExponent();
        if (m_at != m_text.size() || (m_wholeDigits == 0 && !hasFraction)) {
            return false;
        }
        const bool isCode = m_wholeDigits > 1 && m_startsWithZero;
        if (!hasFraction && !hasExponent && (isCode || m_wholeDigits > exactDigits)) {
            return false;
        }
        const bool isOneGroup = m_groups == 1 && m_separator == other(m_mark);
        return (hasFraction || !isOneGroup) && (!hasExponent || value().has_value());
    }

    std::optional<double> value() const {
        bool isNumber = false;
        const double value = QByteArray::fromRawData(m_plain.data(), m_length).toDouble(&isNumber);
        return isNumber && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    }

private:
    QChar at(int place) const { return place < m_text.size() ? m_text[place] : QChar(); }

    int digitsAt(int place) const {
        int end = place;
        while (isDigit(at(end))) {
            ++end;
        }
        return end - place;
    }

    void write(char character) { m_plain[static_cast<std::size_t>(m_length++)] = character; }

    void take(int count) {
        for (const int end = m_at + count; m_at < end; ++m_at) {
            write(m_text[m_at].toLatin1());
        }
    }

    void readSign() {
        constexpr ushort minus = 0x2212;
        const QChar sign = at(m_at);
        if (sign == '-' || sign == '+' || sign == minus) {
            write(sign == '+' ? '+' : '-');
            ++m_at;
        }
    }

    void readWhole() {
        m_wholeDigits = digitsAt(m_at);
        m_startsWithZero = at(m_at) == '0';
        take(m_wholeDigits);
        m_separator = at(m_at);
        const bool separates = isBlank(m_separator) || m_separator == other(m_mark);
        if (!separates || m_wholeDigits == 0 || m_wholeDigits > group || m_startsWithZero) {
            return;
        }
        while (at(m_at) == m_separator && digitsAt(m_at + 1) == group) {
            ++m_at;
            take(group);
            m_wholeDigits += group;
            ++m_groups;
        }
    }

    bool readFraction() {
        const int digits = at(m_at) == m_mark ? digitsAt(m_at + 1) : 0;
        if (digits == 0) {
            return false;
        }
        write('.');
        ++m_at;
        take(digits);
        return true;
    }

    bool readExponent() {
        if (at(m_at).toLower() != 'e') {
            return false;
        }
        const bool hasSign = at(m_at + 1) == '-' || at(m_at + 1) == '+';
        const int digits = digitsAt(m_at + (hasSign ? 2 : 1));
        if (digits == 0) {
            return false;
        }
        take(digits + (hasSign ? 2 : 1));
        return true;
    }

    const QString& m_text;
    QChar m_mark;
    std::array<char, longestText> m_plain{}; // never longer than the text
    int m_length = 0;
    int m_at = 0;
    int m_wholeDigits = 0;
    int m_groups = 0;
    bool m_startsWithZero = false;
    QChar m_separator;
};

/// Most texts of a table are words; they are told apart by how they begin.
bool mayBeNumber(const QString& text) {
    constexpr ushort minus = 0x2212;
    if (text.isEmpty() || text.size() > longestText) {
        return false;
    }
    const QChar first = text[0];
    return isDigit(first) || first == '-' || first == '+' || first == '.' || first == ',' || first == minus;
}

/// Whether what looks like a fraction could be a group of thousands: 1,234 but not 0,123 or 12,5.
bool mayBeThousands(const QString& number, QChar mark) {
    const int start = isDigit(number[0]) ? 0 : 1;
    const int place = number.indexOf(mark);
    const QStringRef behind = number.midRef(place + 1);
    return place > start && place - start <= group && number[start] != '0' && behind.size() == group &&
           std::all_of(behind.begin(), behind.end(), isDigit);
}

} // namespace

std::optional<double> NumberText::value(const QString& text, bool decimalComma) {
    const QString bare = text.trimmed();
    NumberReader reader(bare, decimalComma ? ',' : '.');
    return mayBeNumber(bare) && reader.read() ? reader.value() : std::nullopt;
}

NumberText::Mark NumberText::mark(const QString& text) {
    const QString bare = text.trimmed();
    if (!mayBeNumber(bare)) {
        return Mark::NoNumber;
    }
    const bool withComma = NumberReader(bare, ',').read();
    const bool withPoint = NumberReader(bare, '.').read();
    if (withComma == withPoint) {
        return withComma ? Mark::Whole : Mark::NoNumber;
    }
    if (withComma) {
        return mayBeThousands(bare, ',') ? Mark::CommaOrThousands : Mark::Comma;
    }
    return mayBeThousands(bare, '.') ? Mark::PointOrThousands : Mark::Point;
}
