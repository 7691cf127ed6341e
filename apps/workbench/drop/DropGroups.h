#pragma once

#include "DropChoice.h"
#include "FileKind.h"

#include <QVector>

/// The files of a drop by kind, and what may become of each kind.
class DropGroups {
public:
    struct Group {
        FileKind kind;
        QVector<SortedFile> files;
    };

    explicit DropGroups(const QVector<SortedFile>& files);

    /// In the order of the kinds, those without a file left out.
    const QVector<Group>& groups() const { return m_groups; }

    /// Whether there is anything to choose: a file that is imported or opened.
    bool offersAnything() const;
    /// The one project, if nothing else was dropped.
    QString onlyProject() const;

    /// What may become of a kind, the proposal first; leaving it out is always among them. Projects among
    /// other files are left out unless someone says otherwise: what is imported would go into them.
    QVector<DropChoice::Target> offersFor(FileKind kind) const;

private:
    QVector<Group> m_groups;
};
