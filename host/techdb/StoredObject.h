#pragma once

#include <QDateTime>
#include <QString>

namespace TechDB {

/// What a list shows of a stored analysis; its curve isn't read for it.
struct AnalysisInfo {
    qint64 key = 0;
    QString name;
    /// What it was measured for, as the import named it.
    QString analysisType;
    /// When it was stored, in UTC; invalid if the file holds none that can be read.
    QDateTime created;
    int pointCount = 0;
};

/// What a list shows of a stored dataset.
struct DatasetInfo {
    qint64 key = 0;
    QString name;
    QDateTime created;
    int sampleCount = 0;
};

/// What a list shows of one sample of a dataset.
struct SampleInfo {
    qint64 key = 0;
    QString name;
    int rowCount = 0;
    int columnCount = 0;
};

} // namespace TechDB
