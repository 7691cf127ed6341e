#pragma once

#include <string_view>

namespace gradereport {

/// Whether `a` comes before `b` as a person sorts names: runs of digits by their value, so "a2" before
/// "a10", and letters without regard to case. Names that are equal in that sense are ordered by their
/// bytes, so that the order of different names is always the same.
[[nodiscard]] bool naturallyLess(std::string_view a, std::string_view b);

} // namespace gradereport
