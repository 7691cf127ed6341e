#pragma once

#include <QString>
#include <QStringList>

/// Where the curve of an analysis was read from.
struct AnalysisOrigin {
    QString file;         ///< path of the raw file at that time
    QString sha256;       ///< digest of the file's bytes, 64 hexadecimal digits
    QStringList warnings; ///< what the reader noticed, one line each, with line numbers, in English
};
