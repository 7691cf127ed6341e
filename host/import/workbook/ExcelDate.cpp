#include "ExcelDate.h"

#include <QDate>

#include <cmath>

namespace ExcelDate {

namespace {

using ExcelFormat::Kind;

constexpr qint64 msOfDay = 86'400'000;
constexpr double daysTo9999In1900 = 2'958'465;
constexpr double daysTo9999In1904 = 2'957'003;
constexpr qint64 dayThatWasNot = 60;

/// Hours may have any number of digits.
QString clock(qint64 ms) {
    QString text = QStringLiteral("%1:%2:%3")
                       .arg(ms / 3'600'000, 2, 10, QLatin1Char('0'))
                       .arg(ms / 60'000 % 60, 2, 10, QLatin1Char('0'))
                       .arg(ms / 1'000 % 60, 2, 10, QLatin1Char('0'));
    if (ms % 1'000 != 0) {
        text += QStringLiteral(".%1").arg(ms % 1'000, 3, 10, QLatin1Char('0'));
    }
    return text;
}

QString dateText(qint64 day, Origin origin) {
    if (origin == Origin::Year1904) {
        return QDate(1904, 1, 1).addDays(day).toString(Qt::ISODate);
    }
    if (day == dayThatWasNot) {
        return QStringLiteral("1900-02-29");
    }
    const QDate dayZero = day < dayThatWasNot ? QDate(1899, 12, 31) : QDate(1899, 12, 30);
    return dayZero.addDays(day).toString(Qt::ISODate);
}

bool isInCalendar(double serial, Origin origin) {
    const double last = origin == Origin::Year1900 ? daysTo9999In1900 : daysTo9999In1904;
    const double halfMs = 0.5 / static_cast<double>(msOfDay); // nothing rounds into the year 10000
    return serial >= 0 && serial < last + 1 - halfMs;         // false for what is no number
}

} // namespace

QVariant value(double serial, Origin origin, Kind kind) {
    if (kind == Kind::Number || !isInCalendar(serial, origin)) {
        return serial;
    }
    const qint64 ms = std::llround(serial * static_cast<double>(msOfDay));
    if (kind == Kind::Duration) {
        return clock(ms);
    }
    const qint64 day = ms / msOfDay;
    const QString time = clock(ms % msOfDay);
    const bool hasNoDate = origin == Origin::Year1900 && day == 0;
    if (serial < 1 && (kind == Kind::Time || (kind == Kind::DateTime && hasNoDate))) {
        return time;
    }
    if (hasNoDate) {
        return serial;
    }
    const QString date = dateText(day, origin);
    return kind == Kind::Date && ms % msOfDay == 0 ? date : date + QLatin1Char('T') + time;
}

} // namespace ExcelDate
