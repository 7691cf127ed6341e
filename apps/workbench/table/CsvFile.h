#pragma once

#include <QString>

class QAbstractItemModel;

/// Writes a table as a CSV file (`CsvText`).
class CsvFile {
public:
    /// The file appears, or replaces what lay there, whole or not at all. Throws VKError.
    static void write(const QAbstractItemModel& table, const QString& path);
};
