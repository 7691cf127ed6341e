#pragma once

#include <optional>
#include <string_view>

namespace rockeval {

/// The number a field holds, or nothing if the field is not one finite number and nothing else.
/// Accepts blanks around it, a sign, a decimal point or a decimal comma, and an exponent; the locale
/// plays no part. Thousands separators are not read, nor is a field of more than 64 characters.
std::optional<double> parseNumber(std::string_view field);

} // namespace rockeval
