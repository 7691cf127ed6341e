#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace rockeval {

/// Raw files are some tens of kilobytes; what is larger than this is something else.
constexpr std::size_t maxFileBytes = std::size_t{256} * 1024 * 1024;

/// The bytes of a regular file, unchanged. Throws ReadError for a file that is missing, is a directory,
/// a pipe or a device, can't be opened or read, or holds more than `limit` bytes. The limit also holds
/// for a file that grows while it is read. A pipe is refused unopened, so the call doesn't wait for it.
std::string readBytes(const std::filesystem::path& path, std::size_t limit = maxFileBytes);

} // namespace rockeval
