#include "gradereport/shortestnumber.h"

#include <array>
#include <charconv>
#include <cmath>

namespace gradereport {

namespace {

constexpr double largestPlain = 1e9;
constexpr int scientificDecimals = 3;

/// "-0", "-0.0": what rounding leaves of a small negative value.
bool isSignedZero(const std::string& text) {
    return text.find_first_not_of("-0.") == std::string::npos;
}

} // namespace

std::string shortestNumber(double value) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}

std::string fixedNumber(double value, int decimals) {
    if (!std::isfinite(value))
        return "\u2013";
    const bool plain = std::abs(value) < largestPlain;
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      plain ? std::chars_format::fixed : std::chars_format::scientific,
                                      plain ? decimals : scientificDecimals);
    std::string text(buffer.data(), result.ptr);
    if (text.front() == '-' && isSignedZero(text))
        text.erase(0, 1);
    return text;
}

} // namespace gradereport
