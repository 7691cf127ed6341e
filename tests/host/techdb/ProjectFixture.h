#pragma once

#include "HostTest.h"
#include "ServerDatabase.h"
#include "TDatabase.h"
#include "VKObject2Signal.h"
#include "VKObject2Well.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <memory>

/// A project, a file in a folder of its own or on the tests' server if there is one, and what is done to it
/// behind the library's back.
class ProjectTest : public testing::Test {
protected:
    ProjectTest() { database = TechDB::TDatabase::create(place()); }

    QString place() const { return server ? server->address() : path(); }

    QString path(const QString& file = QStringLiteral("lab.vornproj")) const { return folder.filePath(file); }
    QStringList filesInFolder() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
    void reopen() {
        database.reset();
        database = TechDB::TDatabase::open(place());
    }

    /// Runs statements through a connection without foreign keys, as another program would, and gives the
    /// first column of the last one's first row.
    QVariant sql(const QStringList& statements) const {
        QVariant result;
        if (!server) {
            return sql(path(), statements);
        }
        for (const QString& statement : statements) {
            result = ServerDatabase::run(place(), statement);
        }
        return result;
    }
    static QVariant sql(const QString& file, const QStringList& statements) {
        QVariant result;
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", "behind");
            connection.setDatabaseName(file);
            EXPECT_TRUE(connection.open());
            QSqlQuery query(connection);
            for (const QString& statement : statements) {
                EXPECT_TRUE(query.exec(statement)) << qPrintable(statement + query.lastError().text());
                result = query.next() ? query.value(0) : QVariant();
                query.finish();
            }
        }
        QSqlDatabase::removeDatabase("behind");
        return result;
    }

    static void notShown(qint64 /*done*/, qint64 /*total*/) {}

    static TAnalysisData ramp(int points = 3) {
        std::vector<float> x;
        for (int i = 0; i < points; ++i) {
            x.push_back(static_cast<float>(i));
        }
        return {x, std::vector<float>(x.rbegin(), x.rend())};
    }

    QStringList analysisNames() const {
        QStringList names;
        for (const TechDB::AnalysisInfo& info : database->analyses()) {
            names.append(info.name);
        }
        return names;
    }

    /// All that a person could see of a project.
    static QStringList contentOf(const TechDB::TDatabase& project) {
        QStringList lines{project.projectId()};
        for (const auto& analysis : project.analyses()) {
            lines << QString::number(analysis.key) + analysis.name + analysis.analysisType +
                         analysis.created.toString(Qt::ISODateWithMs);
            if (const auto origin = project.origin(analysis.key)) {
                lines << origin->file << origin->sha256 << origin->warnings;
            }
            lines << (project.curve(analysis.key).equals(ramp(analysis.pointCount)) ? "ramp" : "no ramp");
        }
        for (const auto& well : project.datasets()) {
            for (const auto& sample : project.samples(well.key)) {
                const TechDB::SampleTable table = project.sampleTable(sample.key);
                lines << well.name + sample.name + table.rowNames.join('|') + table.columnNames.join('|');
                for (const QVariant& cell : table.cells) {
                    lines.last() += QLatin1String(cell.typeName()) + cell.toString();
                }
            }
        }
        return lines;
    }

    static QString joined(const TechDB::ListedNames& list) {
        QStringList names;
        for (const TechDB::ListedName& one : list) {
            names.append(one.name);
        }
        return names.join(' ');
    }

    QTemporaryDir folder;
    std::unique_ptr<ServerDatabase> server =
        ServerDatabase::isThere() ? std::make_unique<ServerDatabase>() : nullptr;
    std::unique_ptr<TechDB::TDatabase> database;
};
