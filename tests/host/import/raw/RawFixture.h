#pragma once

#include "ImportRockEvalVI.h"
#include "MessageCollector.h"
#include "VKDatabaseImport.h"
#include "VKError.h"
#include "VKObject2Analysis.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder with a project and an import database, and the four steps that bring a curve from the one to the
/// other as the module takes them.
class RawTest : public testing::Test {
protected:
    RawTest() {
        MessageLoggerInterface::setDefaultLogger(&log);
        project = TechDB::TDatabase::create(path(QStringLiteral("lab.vornproj")));
        imports = VKDatabaseImport::open(path(QStringLiteral("import")));
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    static QByteArray bytesOf(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }

    static QString tcmPath(const VKDatabaseImport& database, const QString& name) {
        const QString separator = QDir::separator();
        return database.rootFolder() + separator + VKObject2Analysis::folderName() + separator + name +
               separator + name + ".tcm";
    }

    /// The first three steps; null where one of them failed.
    static const VKObject2Analysis* imported(VKDatabaseImport& database, QString name, std::vector<float> x,
                                             std::vector<float> y) {
        const bool named = database.addNewAnalysisPath(name, false);
        const bool written = named && database.writeAnalysisFile(
                                          tcmPath(database, name), {x.data(), y.data()},
                                          static_cast<int>(x.size()), 0, 1, "Source Rock QAQC", nullptr);
        return written && database.analysisObjectSave(name) ? database.getAnalysis(name) : nullptr;
    }

    const VKObject2Analysis* imported(const QString& name, float height = 3.0F) {
        return imported(*imports, name, {0.0F, 1.0F, 2.0F}, {1.0F, height, 1.0F});
    }

    /// All four steps.
    bool stored(const QString& name, float height = 3.0F) {
        return imports->objectPush(project.get(), imported(name, height));
    }

    QStringList names(const TechDB::TDatabase& database) const {
        QStringList list;
        for (const TechDB::AnalysisInfo& info : database.analyses()) {
            list.append(info.name);
        }
        return list;
    }

    std::string errors() const { return log.messages(MessageLevel::Error).join('|').toStdString(); }

    QTemporaryDir folder;
    MessageCollector log;
    std::unique_ptr<TechDB::TDatabase> project;
    std::unique_ptr<VKDatabaseImport> imports;
};

/// Succeeds if `text` holds `part`.
inline testing::AssertionResult says(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "\"" << text << "\" doesn't say \"" << part << "\"";
}
