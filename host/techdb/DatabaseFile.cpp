#include "DatabaseFile.h"

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

namespace TechDB::DatabaseFile {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::DatabaseFile", english, french);
}

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path).toHtmlEscaped();
}

std::unique_ptr<SqlConnection> connected(DatabaseKind kind, const QString& path) {
    return std::make_unique<SqlConnection>(kind, path, std::make_unique<SqliteDialect>());
}

void checkPlace(DatabaseKind kind, const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) {
        throw SqlError(SqlFailure::CannotOpen, QSqlError(), kind, path);
    }
    // The engine keeps its log beside the file.
    if (!file.isWritable() || !QFileInfo(file.absolutePath()).isWritable()) {
        throw SqlError(SqlFailure::ReadOnly, QSqlError(), kind, path);
    }
}

/// Whether the engine left a log beside the file, from which it mends the file.
bool hasLog(const QString& path) {
    return QFileInfo(path + QLatin1String("-wal")).size() > 0 ||
           QFileInfo(path + QLatin1String("-journal")).size() > 0;
}

/// The engine reads a page that lacks its end as if zeros followed, which may be the end of a curve.
void checkWholePages(SqlConnection& connection, qint64 size) {
    qint64 page = 0;
    connection.select(QStringLiteral("PRAGMA page_size"), {},
                      [&page](const QSqlQuery& row) { page = row.value(0).toLongLong(); });
    if (page > 0 && size % page != 0) {
        throw SqlError(SqlFailure::Damaged, QSqlError(), connection.kind(), connection.place());
    }
}

void setUpOfOwn(SqlConnection& connection) {
    const QStringList statements = connection.dialect().setUpOfOwn();
    for (const QString& statement : statements) {
        connection.run(statement);
    }
}

/// A path beside the project that is free: lab.version-1.vornproj, lab.version-1-2.vornproj, ...
QString freeBackupPath(const QString& path, int version) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    const QString base = QStringLiteral("%1/%2.version-%3")
                             .arg(file.absolutePath(), file.completeBaseName(), QString::number(version));
    QString candidate = base + suffix;
    for (int number = 2; QFileInfo::exists(candidate); ++number) {
        candidate = base + QLatin1Char('-') + QString::number(number) + suffix;
    }
    return candidate;
}

void migrate(SqlConnection& connection, const DatabaseSchema& schema, int version) {
    const QString path = connection.place();
    const QString backup = freeBackupPath(path, version);
    copy(connection, backup);
    try {
        schema.bringForward(connection);
    } catch (const VKError& error) {
        throw VKError(
            translated("The %2 <b>%1</b> could not be brought to the present format and is as it was.",
                       "Le %2 <b>%1</b> n'a pas pu être converti au format actuel et reste tel quel.")
                .arg(shown(path), nameOf(schema.kind())),
            error.text(),
            translated("A copy of it is <b>%1</b>.", "Une copie en est <b>%1</b>.").arg(shown(backup)));
    }
    MessageLoggerInterface::Information(
        translated("The %5 <b>%1</b> was brought from format %2 to %3; the old one is kept as <b>%4</b>.",
                   "Le %5 <b>%1</b> a été converti du format %2 au format %3 ; l'ancien est conservé sous "
                   "<b>%4</b>.")
            .arg(shown(path), QString::number(version), QString::number(schema.version()), shown(backup),
                 nameOf(schema.kind())));
}

[[noreturn]] void throwNoCopy(const QString& target, const QString& reason) {
    throw VKError(translated("The copy <b>%1</b> was not written:", "La copie <b>%1</b> n'a pas été écrite :")
                      .arg(shown(target)),
                  reason,
                  translated("Choose another file or folder.", "Choisissez un autre fichier ou dossier."));
}

void checkNotOpen(const QString& target) {
    // A log beside it would be taken for that of the new file.
    if (QFileInfo::exists(target + QLatin1String("-wal"))) {
        throwNoCopy(target, translated("it is open in a window, or was when the program ended.",
                                       "il est ouvert dans une fenêtre, ou l'était quand le programme s'est "
                                       "arrêté."));
    }
}

void checkTarget(const SqlConnection& connection, const QString& target) {
    const QFileInfo file(target);
    if (connection.inTransaction()) {
        throwNoCopy(target, translated("the %1 is being written.", "le %1 est en cours d'écriture.")
                                .arg(nameOf(connection.kind())));
    }
    if (file.exists() && file.canonicalFilePath() == QFileInfo(connection.place()).canonicalFilePath()) {
        throwNoCopy(
            target,
            translated("it is the %1 itself.", "c'est le %1 lui-même.").arg(nameOf(connection.kind())));
    }
    checkNotOpen(target);
}

/// With what the engine may have left beside it.
void remove(const QString& path) {
    for (const char* const end : {"", "-journal", "-wal", "-shm"}) {
        QFile::remove(path + QLatin1String(end));
    }
}

bool isWhole(DatabaseKind kind, const QString& path) {
    bool whole = false;
    const std::unique_ptr<SqlConnection> connection = connected(kind, path);
    connection->select(connection->dialect().checkWhole(), {}, [&whole](const QSqlQuery& row) {
        whole = row.value(0).toString() == QLatin1String("ok");
    });
    return whole;
}

std::filesystem::path native(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

void takePlaceOf(const QString& made, const QString& target) {
    std::error_code failure;
    std::filesystem::rename(native(made), native(target), failure);
    if (failure) {
        throwNoCopy(target,
                    QString::fromLocal8Bit(failure.message().c_str()).toHtmlEscaped() + QLatin1Char('.'));
    }
}

/// Gives a finished file its name, unless another one got it meanwhile. A link is refused then; Qt's renaming
/// would see that the name is taken and copy the content over the file that another window works with.
void giveName(const QString& made, const QString& path) {
    std::error_code failure;
    std::filesystem::create_hard_link(native(made), native(path), failure);
    if (failure && !QFileInfo::exists(path)) { // a file system without links
        std::filesystem::rename(native(made), native(path), failure);
    }
    remove(made);
}

} // namespace

std::unique_ptr<SqlConnection> create(const QString& path, const DatabaseSchema& schema) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        throw VKError(
            translated("The %2 <b>%1</b> can't be created:", "Le %2 <b>%1</b> ne peut pas être créé :")
                .arg(shown(path), nameOf(schema.kind())),
            file.errorString().toHtmlEscaped() + QLatin1Char('.'),
            translated("Choose another name or folder.", "Choisissez un autre nom ou dossier."));
    }
    file.close();
    try {
        std::unique_ptr<SqlConnection> connection = connected(schema.kind(), path);
        SqlTransaction transaction(*connection);
        schema.create(*connection, QUuid::createUuid().toString(QUuid::WithoutBraces), StoredInstant::now());
        transaction.commit();
        // Not before: what is committed to a log reaches the file later, and a full disk may keep it out.
        setUpOfOwn(*connection);
        return connection;
    } catch (...) {
        remove(path);
        throw;
    }
}

std::unique_ptr<SqlConnection> open(const QString& path, const DatabaseSchema& schema) {
    checkPlace(schema.kind(), path);
    const qint64 size = QFileInfo(path).size();
    const bool isMended = hasLog(path);
    std::unique_ptr<SqlConnection> connection = connected(schema.kind(), path);
    const int version = schema.knownVersionOf(*connection);
    if (!isMended) {
        checkWholePages(*connection, size);
    }
    setUpOfOwn(*connection);
    if (version < schema.version()) {
        migrate(*connection, schema, version);
    }
    schema.probe(*connection);
    return connection;
}

std::unique_ptr<SqlConnection> openOrCreate(const QString& path, const DatabaseSchema& schema) {
    if (!QFileInfo::exists(path)) {
        const QString made = path + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128);
        create(made, schema).reset();
        giveName(made, path);
    }
    return open(path, schema);
}

void copy(SqlConnection& connection, const QString& target) {
    checkTarget(connection, target);
    QTemporaryFile part(target + QLatin1String(".XXXXXX"));
    if (!part.open()) {
        throwNoCopy(target, part.errorString().toHtmlEscaped() + QLatin1Char('.'));
    }
    part.close();
    connection.run(connection.dialect().copyToFile(), {part.fileName()});
    if (!isWhole(connection.kind(), part.fileName())) {
        throwNoCopy(target,
                    translated("the %1 is damaged.", "le %1 est endommagé.").arg(nameOf(connection.kind())));
    }
    part.setPermissions(QFile::permissions(connection.place()));
    takePlaceOf(part.fileName(), target);
    part.setAutoRemove(false);
}

void write(const QString& target, DatabaseKind kind, const std::function<void(SqlConnection&)>& fill) {
    checkNotOpen(target);
    const QString part = target + QLatin1String(".part");
    QFile file(part);
    if (!file.open(QIODevice::ReadWrite)) { // which makes it if need be
        throwNoCopy(target, file.errorString().toHtmlEscaped() + QLatin1Char('.'));
    }
    file.close();
    {
        const std::unique_ptr<SqlConnection> connection = connected(kind, part);
        setUpOfOwn(*connection);
        fill(*connection);
    }
    checkNotOpen(target);
    takePlaceOf(part, target);
}

} // namespace TechDB::DatabaseFile
