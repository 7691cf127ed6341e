#pragma once

#include <vector>

struct ColumnHeader;

/// Finds the column that names the samples by its header, in English and French.
class IdentifierGuess {
public:
    /// The place of the first header that speaks of samples ("Sample ID", "N° échantillon"); without one, of
    /// the first that speaks of names or numbers in general, then of wells; else 0, the first column.
    /// Negative for no headers.
    static int of(const std::vector<ColumnHeader>& headers);
};
