#pragma once

#include "NameRange.h"
#include "SqlConnection.h"

namespace TechDB {

/// The names of what a project holds, list by list, in natural order. A page of a list is read without
/// reading what stands before or behind it; a part of a name is looked for in the index alone. Failures are
/// thrown as VKError.
class NameLists {
public:
    explicit NameLists(SqlConnection& connection) : m_connection(connection) {}

    ListedNames analyses(const NameRange& range) const;
    ListedNames datasets(const NameRange& range) const;
    /// None for an unknown dataset.
    ListedNames samples(qint64 dataset, const NameRange& range) const;

private:
    struct List {
        QString table;
        /// What is shown beside the name: the instant and the count.
        QString columns;
        /// Begins the conditions; its values come first.
        QString of;
        QString holdsPart;
    };
    ListedNames read(const List& list, SqlConnection::Values values, const NameRange& range) const;

    SqlConnection& m_connection;
};

} // namespace TechDB
