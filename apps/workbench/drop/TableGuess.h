#pragma once

#include "FileKind.h"

/// Tells what a workbook's proposed sheet is about by its headers, as the column wizards understand them.
namespace TableGuess {

/// Larger files aren't read only to be told apart.
constexpr qint64 largestFile = 1 << 20;

/// A kind of table; `OtherTable` also for what is too large, damaged or protected: its import tells why.
FileKind of(const QString& path);

} // namespace TableGuess
