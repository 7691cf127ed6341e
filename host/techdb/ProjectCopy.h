#pragma once

#include "CopyProgress.h"
#include "SqlConnection.h"

#include <functional>

namespace TechDB {

/// Copies all that a project holds into another database, with its keys and its identity, and compares the
/// two in the end. What an earlier run has copied before it broke off is compared and not written again.
/// Until it is complete, the target is no project and can't be opened as one. Failures are thrown as VKError.
class ProjectCopy {
public:
    /// Throws VKError unless the target is empty or holds such a copy of the source that broke off.
    ProjectCopy(SqlConnection& source, SqlConnection& target);

    /// A copy is compared once it is written, so that each object counts twice as a step.
    void run(const CopyProgress& progress);

private:
    struct Group;
    struct Table;
    using Rows = QVector<SqlConnection::Values>;

    static const QVector<Group>& groups();
    static Rows rowsOf(SqlConnection& connection, const Table& table, qint64 after, qint64 last);

    void prepareTarget();
    qint64 objectCount();
    void forEachRange(const Group& group, const std::function<void(qint64 after, qint64 last)>& step);
    bool isEqual(const Group& group, qint64 after, qint64 last);
    void copyRange(const Group& group, qint64 after, qint64 last);
    void copyAll(const Group& group);
    void compareAll(const Group& group);
    void finish();
    void count(qint64 objects);

    SqlConnection& m_source;
    SqlConnection& m_target;
    CopyProgress m_progress;
    qint64 m_done = 0;
    qint64 m_total = 0;
};

} // namespace TechDB
