#pragma once

#include "FileKind.h"

#include <QCoreApplication>

/// Tells what a file is to the workbench, by its name and its content: names lie, and the readers go by both.
class FileSorter {
    Q_DECLARE_TR_FUNCTIONS(FileSorter)

public:
    /// Reads the beginning of the file, and the whole of a table of moderate size.
    static SortedFile sort(const QString& path);

private:
    /// Why a file isn't read, for one that is known neither by name nor by content; never empty.
    static QString strangerReason(const QString& path, const QByteArray& head);
    static QString wrongContent(const QString& path);
};
