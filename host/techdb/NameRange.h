#pragma once

#include <QDateTime>
#include <QString>
#include <QVector>

#include <optional>

namespace TechDB {

/// Where a name stands in its list: by the natural order of the names (`NaturalOrder::key`), equal ones in
/// the order of storing.
struct NamePlace {
    QString sortKey;
    /// 0 is before all others of the same sort key.
    qint64 key = 0;

    bool operator<(const NamePlace& other) const;
};

/// What part of a list of names is read.
struct NameRange {
    /// Only what has this in its name, in either case; a dataset also for a sample that has it. All if empty.
    QString part;
    /// Only what stands behind this place.
    NamePlace after;
    /// Only what stands before this place or at it.
    std::optional<NamePlace> upTo;
    /// Only the object of this key.
    std::optional<qint64> only;
    /// As many at most.
    int limit = 0x7fffffff;
};

/// What a list shows of a stored object.
struct ListedName {
    NamePlace place;
    QString name;
    /// When it was stored, in UTC; invalid for a sample, and if the project holds none that can be read.
    QDateTime created;
    /// The points of an analysis. For a dataset, 1 if it holds samples, else 0. For a sample 0.
    int count = 0;
};

using ListedNames = QVector<ListedName>;

} // namespace TechDB
