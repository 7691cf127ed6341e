#pragma once

#include "rockeval/rawsignal.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace rockeval {

/// Reads time and FID from the first [Curves pyro] section of a .S00 text. Lines end in CRLF, LF or CR;
/// columns are separated by tabs. A row is left out, with a warning, if it has fewer than three columns,
/// if its time or FID is not a number that fits a float, or if its time is not above the one before.
/// Missing seconds and a further [Curves pyro] section are warned about; no row is made up for them.
/// Throws ReadError if the bytes are not text, have no such section, or no row of it can be used.
/// `fileName` serves the messages only.
RawSignal readSignal(std::string_view bytes, const std::string& fileName);

/// The same from a file; throws as readBytes does too.
RawSignal readSignalFile(const std::filesystem::path& path);

} // namespace rockeval
