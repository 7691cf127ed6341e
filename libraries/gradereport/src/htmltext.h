#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gradereport {

/// Outside text for an element or a quoted attribute of HTML: made visible (see visibleText) and with
/// & < > " ' as entities.
[[nodiscard]] std::string escaped(std::string_view text);

/// The text as a `span`, shortened in its middle to `width` columns; the span then bears the whole text as
/// its title.
[[nodiscard]] std::string shortenedSpan(std::string_view text, std::size_t width);

/// At most `decimals` decimals, without trailing zeros; see fixedNumber.
[[nodiscard]] std::string trimmedNumber(double value, int decimals);

/// "1 peak", "3 peaks".
[[nodiscard]] std::string counted(std::size_t count, std::string_view singular, std::string_view plural);

} // namespace gradereport
