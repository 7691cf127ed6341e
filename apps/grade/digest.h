#pragma once

#include <string>
#include <string_view>

namespace grade {

/// The SHA-256 digest of `bytes` as 64 hexadecimal digits, as `sha256sum` prints it. Throws
/// `std::runtime_error` where the cryptographic library can't compute it.
[[nodiscard]] std::string sha256(std::string_view bytes);

} // namespace grade
