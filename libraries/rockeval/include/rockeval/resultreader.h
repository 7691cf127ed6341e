#pragma once

#include "rockeval/resulttable.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace rockeval {

/// Result files have some hundred lines; the limit keeps a hostile file from filling the memory.
constexpr std::size_t maxResultLines = 100000;

/// Reads the sections of a .R00 text. Lines end in CRLF, LF or CR. A line that is valid UTF-8 stays as
/// it is, any other is taken as Windows-1252. Nothing is dropped: repeated sections and keys, lines
/// without an equals sign and lines before the first section are kept and warned about.
/// Throws ReadError if the bytes are not text, hold no section or more than maxResultLines sections and
/// entries. `fileName` serves the messages only.
ResultTable readResults(std::string_view bytes, const std::string& fileName);

/// The same from a file; throws as readBytes does too.
ResultTable readResultsFile(const std::filesystem::path& path);

} // namespace rockeval
