#pragma once

#include <QString>

#include <optional>

/// Numbers that a sheet holds as text.
class NumberText {
public:
    /// What a text says about the decimal mark of its column: nothing (12, or no number at all), one of the
    /// two, or one of the two unless its mark separates thousands (1,234).
    enum class Mark { NoNumber, Whole, Comma, Point, CommaOrThousands, PointOrThousands };

    /// The number; none if the text is more or less than one. Blanks and the other mark may separate
    /// thousands. Left alone, since a number would lose something: codes such as 007, whole numbers of more
    /// digits than a double keeps, and 1.234 in a column with a decimal comma, which may mean either.
    static std::optional<double> value(const QString& text, bool decimalComma);

    static Mark mark(const QString& text);
};
