#include "CellText.h"

#include <QDate>
#include <QVariant>

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr double smallestPlain = 1e-5;

// Beyond its own digits a float in plain form would show digits that were never measured.
constexpr double endOfPlain(float) {
    return 1e7;
}
constexpr double endOfPlain(double) {
    return 1e15;
}

template <typename Number>
QString shortest(Number number, QChar decimalPoint) {
    if (std::isnan(number)) {
        return {};
    }
    const double size = std::abs(static_cast<double>(number));
    const bool plain = size == 0 || (size >= smallestPlain && size < endOfPlain(number));
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific);
    QString result = QString::fromLatin1(text.data(), static_cast<int>(end.ptr - text.data()));
    return decimalPoint == QLatin1Char('.') ? result : result.replace(QLatin1Char('.'), decimalPoint);
}

} // namespace

QString CellText::of(const QVariant& value, QChar decimalPoint) {
    switch (value.userType()) {
    case QMetaType::Double:
        return shortest(value.toDouble(), decimalPoint);
    case QMetaType::Float:
        return shortest(value.toFloat(), decimalPoint);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODateWithMs);
    default:
        return value.toString();
    }
}
