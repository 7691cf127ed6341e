#include "ProjectFile.h"

#include "MessageLoggerInterface.h"
#include "SqlConnection.h"
#include "SqlError.h"
#include "SqlTransaction.h"
#include "SqliteDialect.h"
#include "StoredInstant.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QTemporaryFile>
#include <QUuid>

#include <filesystem>
#include <system_error>

namespace TechDB::ProjectFile {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::ProjectFile", english, french);
}

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path).toHtmlEscaped();
}

std::unique_ptr<SqlConnection> connected(const QString& path) {
    return std::make_unique<SqlConnection>(path, std::make_unique<SqliteDialect>());
}

void checkPlace(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) {
        throw SqlError(SqlFailure::CannotOpen, QSqlError(), path);
    }
    // The engine keeps its log beside the file.
    if (!file.isWritable() || !QFileInfo(file.absolutePath()).isWritable()) {
        throw SqlError(SqlFailure::ReadOnly, QSqlError(), path);
    }
}

void setUpOfOwn(SqlConnection& connection) {
    const QStringList statements = connection.dialect().setUpOfOwn();
    for (const QString& statement : statements) {
        connection.run(statement);
    }
}

[[noreturn]] void throwNewer(const QString& path, int found, int known) {
    throw VKError(
        translated("The project <b>%1</b> was saved by a newer version of this program.",
                   "Le projet <b>%1</b> a été enregistré par une version plus récente de ce programme.")
            .arg(shown(path)),
        translated("(Its format is %1, this version knows formats up to %2.)",
                   "(Son format est %1, cette version connaît les formats jusqu'à %2.)")
            .arg(found)
            .arg(known),
        translated("Open it with that version.", "Ouvrez-le avec cette version."));
}

/// A path beside the project that is free: lab.version-1.vornproj, lab.version-1-2.vornproj, ...
QString freeBackupPath(const QString& path, int version) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    const QString base =
        QStringLiteral("%1/%2.version-%3").arg(file.absolutePath(), file.completeBaseName()).arg(version);
    QString candidate = base + suffix;
    for (int number = 2; QFileInfo::exists(candidate); ++number) {
        candidate = base + QLatin1Char('-') + QString::number(number) + suffix;
    }
    return candidate;
}

/// Another window may have brought the project forward while this one waited to write.
void migrateInTransaction(SqlConnection& connection, const ProjectSchema& schema) {
    SqlTransaction transaction(connection);
    const int version = ProjectSchema::versionOf(connection);
    if (version < schema.version()) {
        schema.migrate(connection, version);
    }
    transaction.commit();
}

void migrate(SqlConnection& connection, const ProjectSchema& schema, int version) {
    const QString path = connection.place();
    const QString backup = freeBackupPath(path, version);
    copy(connection, backup);
    try {
        migrateInTransaction(connection, schema);
    } catch (const VKError& error) {
        throw VKError(
            translated("The project <b>%1</b> could not be brought to the present format and is as it "
                       "was.",
                       "Le projet <b>%1</b> n'a pas pu être converti au format actuel et reste tel quel.")
                .arg(shown(path)),
            error.text(),
            translated("A copy of it is <b>%1</b>.", "Une copie en est <b>%1</b>.").arg(shown(backup)));
    }
    MessageLoggerInterface::Information(
        translated(
            "The project <b>%1</b> was brought from format %2 to %3; the old one is kept as <b>%4</b>.",
            "Le projet <b>%1</b> a été converti du format %2 au format %3 ; l'ancien est conservé sous "
            "<b>%4</b>.")
            .arg(shown(path))
            .arg(version)
            .arg(schema.version())
            .arg(shown(backup)));
}

[[noreturn]] void throwNoCopy(const QString& target, const QString& reason) {
    throw VKError(translated("The copy <b>%1</b> was not written:", "La copie <b>%1</b> n'a pas été écrite :")
                      .arg(shown(target)),
                  reason,
                  translated("Choose another file or folder.", "Choisissez un autre fichier ou dossier."));
}

void checkTarget(const SqlConnection& connection, const QString& target) {
    const QFileInfo file(target);
    if (connection.inTransaction()) {
        throwNoCopy(target,
                    translated("the project is being written.", "le projet est en cours d'écriture."));
    }
    if (file.exists() && file.canonicalFilePath() == QFileInfo(connection.place()).canonicalFilePath()) {
        throwNoCopy(target, translated("it is the project itself.", "c'est le projet lui-même."));
    }
    // A log beside it would be taken for that of the new file.
    if (QFileInfo::exists(target + QLatin1String("-wal"))) {
        throwNoCopy(target, translated("it is open in a window, or was when the program ended.",
                                       "il est ouvert dans une fenêtre, ou l'était quand le programme s'est "
                                       "arrêté."));
    }
}

bool isWhole(const QString& path) {
    bool whole = false;
    const std::unique_ptr<SqlConnection> connection = connected(path);
    connection->select(connection->dialect().checkWhole(), {}, [&whole](const QSqlQuery& row) {
        whole = row.value(0).toString() == QLatin1String("ok");
    });
    return whole;
}

std::filesystem::path native(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

} // namespace

std::unique_ptr<SqlConnection> create(const QString& path, const ProjectSchema& schema) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        throw VKError(translated("The project <b>%1</b> can't be created:",
                                 "Le projet <b>%1</b> ne peut pas être créé :")
                          .arg(shown(path)),
                      file.errorString().toHtmlEscaped() + QLatin1Char('.'),
                      translated("Choose another name or folder.", "Choisissez un autre nom ou dossier."));
    }
    file.close();
    try {
        std::unique_ptr<SqlConnection> connection = connected(path);
        setUpOfOwn(*connection);
        SqlTransaction transaction(*connection);
        schema.create(*connection, QUuid::createUuid().toString(QUuid::WithoutBraces), StoredInstant::now());
        transaction.commit();
        return connection;
    } catch (...) {
        file.remove();
        throw;
    }
}

std::unique_ptr<SqlConnection> open(const QString& path, const ProjectSchema& schema) {
    checkPlace(path);
    std::unique_ptr<SqlConnection> connection = connected(path);
    const int version = ProjectSchema::versionOf(*connection);
    if (version > schema.version()) {
        throwNewer(path, version, schema.version());
    }
    setUpOfOwn(*connection);
    if (version < schema.version()) {
        migrate(*connection, schema, version);
    }
    ProjectSchema::probe(*connection);
    return connection;
}

void copy(SqlConnection& connection, const QString& target) {
    checkTarget(connection, target);
    QTemporaryFile part(target + QLatin1String(".XXXXXX"));
    if (!part.open()) {
        throwNoCopy(target, part.errorString().toHtmlEscaped() + QLatin1Char('.'));
    }
    part.close();
    connection.run(connection.dialect().copyToFile(), {part.fileName()});
    if (!isWhole(part.fileName())) {
        throwNoCopy(target, translated("the project is damaged.", "le projet est endommagé."));
    }
    part.setPermissions(QFile::permissions(connection.place()));
    std::error_code failure;
    std::filesystem::rename(native(part.fileName()), native(target), failure);
    if (failure) {
        throwNoCopy(target,
                    QString::fromLocal8Bit(failure.message().c_str()).toHtmlEscaped() + QLatin1Char('.'));
    }
    part.setAutoRemove(false);
}

} // namespace TechDB::ProjectFile
