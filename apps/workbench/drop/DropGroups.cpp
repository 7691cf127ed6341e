#include "DropGroups.h"

#include <algorithm>

using Target = DropChoice::Target;

DropGroups::DropGroups(const QVector<SortedFile>& files) {
    for (const FileKind kind : {FileKind::Raw, FileKind::SourceRockTable, FileKind::GasTable,
                                FileKind::OtherTable, FileKind::Project, FileKind::Unknown}) {
        Group group{kind, {}};
        std::copy_if(files.begin(), files.end(), std::back_inserter(group.files),
                     [kind](const SortedFile& file) { return file.kind == kind; });
        if (!group.files.isEmpty()) {
            m_groups.append(group);
        }
    }
}

bool DropGroups::offersAnything() const {
    return !m_groups.isEmpty() && m_groups.first().kind != FileKind::Unknown;
}

QString DropGroups::onlyProject() const {
    const bool only = m_groups.size() == 1 && m_groups.first().kind == FileKind::Project &&
                      m_groups.first().files.size() == 1;
    return only ? m_groups.first().files.first().path : QString();
}

QVector<Target> DropGroups::offersFor(FileKind kind) const {
    switch (kind) {
    case FileKind::Raw:
        return {Target::SourceRock, Target::LeaveOut};
    case FileKind::SourceRockTable:
        return {Target::SourceRock, Target::Gas, Target::Custom, Target::LeaveOut};
    case FileKind::GasTable:
        return {Target::Gas, Target::SourceRock, Target::Custom, Target::LeaveOut};
    case FileKind::OtherTable:
        return {Target::Custom, Target::SourceRock, Target::Gas, Target::LeaveOut};
    case FileKind::Project:
        return m_groups.size() == 1 ? QVector<Target>{Target::Open, Target::LeaveOut}
                                    : QVector<Target>{Target::LeaveOut, Target::Open};
    case FileKind::Unknown:
        break;
    }
    return {Target::LeaveOut};
}
