#pragma once

#include <QString>

class QVariant;

/// A cell's value as text that loses nothing: a float or double in the fewest digits that read back to the
/// same bits, without a separator of thousands; from 10^15 on (float: 10^7), and below 10^-5, with an
/// exponent. A number that is none, and no value, is empty; an infinite one is "inf" or "-inf".
class CellText {
public:
    static QString of(const QVariant& value, QChar decimalPoint = QLatin1Char('.'));
};
