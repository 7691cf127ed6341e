#pragma once

#include "ImportMapping.h"

#include <QStringList>
#include <QVector>

struct ColumnHeader;
struct TKnownProperty;

/// The names under which columns are imported, each once: of two that would bear one name the latter gets a
/// number behind it. The identifying column is named first, then known properties, then the others.
class ColumnNames {
public:
    /// A column that got a number behind its name, and the one whose name it would have had.
    struct Renamed {
        int place = 0;  ///< of the column, in the mapping
        int holder = 0; ///< of the one that bears the name
        QString name;   ///< that both would bear
    };

    ColumnNames() = default;
    ColumnNames(const ImportMapping& mapping, const std::vector<ColumnHeader>& headers,
                const QVector<TKnownProperty>& properties);

    /// One for each column of the mapping, empty for those not imported.
    const QStringList& names() const { return m_names; }
    const QVector<Renamed>& renamed() const { return m_renamed; }

private:
    QStringList m_names;
    QVector<Renamed> m_renamed;
};
