#pragma once

#include "VKDatabaseImport.h"
#include "VKObject2Analysis.h"

#include <QDir>

#include <vector>

/// The steps by which an import module brings a curve into a project.
namespace ImportSteps {

inline QString tcmPath(const VKDatabaseImport& database, const QString& name) {
    return QStringList{database.rootFolder(), VKObject2Analysis::folderName(), name, name}.join(
               QDir::separator()) +
           ".tcm";
}

inline bool written(VKDatabaseImport& database, QString& name, const QList<float*>& channels, int count) {
    return database.addNewAnalysisPath(name, false) &&
           database.writeAnalysisFile(tcmPath(database, name), channels, count, 0, 1, "Source Rock QAQC",
                                      nullptr);
}

/// The first three steps; null where one of them failed.
inline const VKObject2Analysis* imported(VKDatabaseImport& database, QString name, std::vector<float> y) {
    std::vector<float> x{0.0F, 1.0F, 2.0F};
    const bool saved = written(database, name, {x.data(), y.data()}, 3) && database.analysisObjectSave(name);
    return saved ? database.getAnalysis(name) : nullptr;
}

} // namespace ImportSteps
