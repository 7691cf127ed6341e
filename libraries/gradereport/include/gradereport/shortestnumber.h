#pragma once

#include <string>

namespace gradereport {

/// Decimal text of a number in its shortest form that reads back to the same double, with a decimal point
/// whatever the locale; valid as a number in JSON. The value must be finite: what stands in the place of a
/// number that is not differs between the formats, so it is the caller's choice.
[[nodiscard]] std::string shortestNumber(double value);

/// Decimal text with exactly the given number of decimals, for people to read; a value of 1e9 and more in
/// amount is given as a power of ten, a zero has no sign and a value that is not finite is a dash (U+2013).
[[nodiscard]] std::string fixedNumber(double value, int decimals);

} // namespace gradereport
