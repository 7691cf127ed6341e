#include "rockeval/number.h"

#include "digits.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace rockeval {

namespace {

constexpr std::size_t longestNumber = 64;

// std::from_chars also takes "inf" and "nan", which is why the result is checked.
std::optional<double> parseWithPoint(std::string_view text) {
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

std::optional<double> parseNumber(std::string_view field) {
    std::string_view text = trim(field);
    if (double integer = 0.0; readDigits(text, integer))
        return integer;
    if (text.size() > longestNumber)
        return std::nullopt;
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-')
            return std::nullopt;
    }
    if (text.find(',') == std::string_view::npos)
        return parseWithPoint(text);
    std::array<char, longestNumber> copy{};
    std::replace_copy(text.begin(), text.end(), copy.begin(), ',', '.');
    return parseWithPoint({copy.data(), text.size()});
}

} // namespace rockeval
