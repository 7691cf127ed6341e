#pragma once

#include <string>
#include <string_view>

namespace rockeval {

/// What a reader says of a file, in French: a warning, with its line or without, or the problem of a
/// ReadError. Parts that come from the file stay as they are; a text that is none of the readers' comes back
/// unchanged.
[[nodiscard]] std::string inFrench(std::string_view remark);

} // namespace rockeval
