#pragma once

#include "NameRange.h"

#include <QVector>

namespace TechDB {
class TDatabase;
} // namespace TechDB
struct ProjectNode;

/// Reads the lists of a project tree page by page, as the filter leaves them: what has it in its name, in
/// either case; a dataset that has it with all its samples, a sample that has it with its dataset. Throws
/// VKError if the project can't be read.
class ProjectPages {
public:
    /// Rows that are read at once: more than a screen shows.
    static constexpr int pageSize = 128;

    struct Page {
        TechDB::ListedNames names;
        /// Whether nothing comes behind them.
        bool isLast = true;
    };

    /// The project must outlive this.
    ProjectPages(const TechDB::TDatabase& project, const QString& filter)
        : m_project(project), m_filter(filter) {}

    static bool matches(const QString& name, const QString& filter);

    /// What comes behind the rows of a list that were read: a page, or all.
    Page next(const ProjectNode& list) const;
    Page rest(const ProjectNode& list) const;

    /// From the start of a list.
    Page first(const ProjectNode& list, const QString& name, const QVector<qint64>& held) const;
    /// What was read of a list, once more, and a page of what has come behind its end. Both read as far as
    /// the objects of the keys `held` too, wherever they have gone. `name` is the present one of the list.
    Page again(const ProjectNode& list, const QString& name, const QVector<qint64>& held) const;

private:
    TechDB::ListedNames read(const ProjectNode& list, const QString& name, TechDB::NameRange range) const;
    Page withHeld(const ProjectNode& list, const QString& name, const QVector<qint64>& held, Page page) const;

    const TechDB::TDatabase& m_project;
    QString m_filter;
};
