#pragma once

#include "ImportMapping.h"

#include <QString>
#include <QStringList>
#include <QVector>

struct ColumnHeader;
struct TKnownProperty;

/// What a person chose for tables with the same headers before, kept in the user's settings. The decimal mark
/// is not part of it: the data of each file tell it.
class MappingMemory {
public:
    /// Tables of different strategies are kept apart.
    MappingMemory(const QString& strategy, const QVector<TKnownProperty>& properties);

    /// Sets identifier and targets to what was chosen for these headers. Changes nothing and gives false if
    /// there is nothing, or what there is doesn't fit the headers or names a property that is not offered.
    bool recall(const std::vector<ColumnHeader>& headers, ImportMapping& mapping) const;

    /// Keeps the choices; those for the headers that were met longest ago give way.
    void remember(const std::vector<ColumnHeader>& headers, const ImportMapping& mapping) const;

private:
    QString fingerprint(const std::vector<ColumnHeader>& headers) const;
    int target(const QString& choice) const;
    QString choice(int target) const;

    QString m_strategy;
    QStringList m_keys;
};
