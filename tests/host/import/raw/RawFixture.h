#pragma once

#include "HostTest.h"
#include "ImportSteps.h"
#include "MessageCollector.h"

#include <QTemporaryDir>

/// A folder with a project and an import database.
class RawTest : public testing::Test {
protected:
    RawTest() {
        MessageLoggerInterface::setDefaultLogger(&log);
        project = TechDB::TDatabase::create(path(QStringLiteral("lab.vornproj")));
        imports = VKDatabaseImport::open(path(QStringLiteral("import")));
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const { return fileWith(path(name), bytes); }

    const VKObject2Analysis* imported(const QString& name, float height = 3.0F) {
        return ImportSteps::imported(*imports, name, {1.0F, height, 1.0F});
    }
    bool stored(const QString& name, float height = 3.0F) {
        return imports->objectPush(project.get(), imported(name, height));
    }

    static QStringList names(const TechDB::TDatabase& database) {
        QStringList list;
        for (const TechDB::AnalysisInfo& info : database.analyses()) {
            list.append(info.name);
        }
        return list;
    }

    /// The messages of one level since this was asked last.
    std::string told(MessageLevel level = MessageLevel::Error) {
        const std::string text = log.messages(level).join('|').toStdString();
        log.clear();
        return text;
    }

    QTemporaryDir folder;
    MessageCollector log;
    std::unique_ptr<TechDB::TDatabase> project;
    std::unique_ptr<VKDatabaseImport> imports;
};
