#pragma once

#include <QString>

/// What a file is to the workbench.
enum class FileKind {
    Raw,             ///< a raw Rock-Eval file, signal or results
    SourceRockTable, ///< a table whose columns are mostly those of source rocks
    GasTable,        ///< the same of gases
    OtherTable,      ///< a table of any other columns
    Project,
    Unknown ///< nothing here reads it
};

/// A file that was dropped.
struct SortedFile {
    QString path;
    FileKind kind = FileKind::Unknown;
    /// Of an unknown one: why nothing reads it and what to do, half a sentence in restricted rich text.
    QString reason;
};

/// The kind's name for a list of several such files, in the user's language.
QString nameOf(FileKind kind);
