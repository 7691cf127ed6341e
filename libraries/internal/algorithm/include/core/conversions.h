#pragma once

#include <cstdint>

/// Conversions of doubles to integers with a defined result for every argument.
///
/// A plain cast of a value that does not fit is undefined behaviour; indices estimated from hostile
/// abscissae and sums of hostile ordinates reach such values.
namespace algo::core {

/// Truncates toward zero; what does not fit, NaN included, gives the smallest 32-bit value.
inline std::int32_t truncateToInt32(double value) {
    const bool fits = value > -2147483649.0 && value < 2147483648.0;
    return fits ? static_cast<std::int32_t>(value) : INT32_MIN;
}

/// Truncates toward zero over the full unsigned range. A value of -1 or below wraps, so it becomes
/// larger than any size; what fits neither way, NaN included, gives 2^63.
inline std::uint64_t truncateToUInt64(double value) {
    constexpr double twoTo63 = 9223372036854775808.0;
    if (value >= twoTo63 && value < 2.0 * twoTo63) {
        return static_cast<std::uint64_t>(value);
    }
    const bool fitsSigned = value >= -twoTo63 && value < twoTo63;
    return fitsSigned ? static_cast<std::uint64_t>(static_cast<std::int64_t>(value))
                      : std::uint64_t{1} << 63U;
}

/// The low 32 bits as a signed number.
inline std::int32_t lowInt32(std::uint64_t value) {
    const auto low = static_cast<std::uint32_t>(value);
    return low <= static_cast<std::uint32_t>(INT32_MAX)
               ? static_cast<std::int32_t>(low)
               : static_cast<std::int32_t>(low - 0x80000000U) + INT32_MIN;
}

} // namespace algo::core
