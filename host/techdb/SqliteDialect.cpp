#include "SqliteDialect.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QUrl>

namespace TechDB {

QString SqliteDialect::driver() const {
    return QStringLiteral("QSQLITE");
}

QString SqliteDialect::shown(const QString& place) const {
    return place;
}

bool SqliteDialect::streamsRows() const {
    return true;
}

void SqliteDialect::aim(QSqlDatabase& connection, const QString& place) const {
    // Only an address can say that a missing file must not be created.
    const QUrl file = QUrl::fromLocalFile(QFileInfo(place).absoluteFilePath());
    connection.setDatabaseName(QString::fromLatin1(file.toEncoded()) + QStringLiteral("?mode=rw"));
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=5000"));
}

QStringList SqliteDialect::setUp() const {
    // A file from elsewhere may hold triggers and views: they get no functions with effects outside it.
    return {QStringLiteral("PRAGMA foreign_keys = ON"), QStringLiteral("PRAGMA trusted_schema = OFF"),
            QStringLiteral("PRAGMA cell_size_check = ON")};
}

QStringList SqliteDialect::setUpOfOwn() const {
    return {QStringLiteral("PRAGMA journal_mode = WAL"), QStringLiteral("PRAGMA synchronous = FULL")};
}

QStringList SqliteDialect::setUpOfReplaceable() const {
    return {QStringLiteral("PRAGMA synchronous = NORMAL")};
}

QString SqliteDialect::adapted(const QString& statement) const {
    QString text = statement;
    text.replace(QLatin1String("{identity}"), QLatin1String("INTEGER PRIMARY KEY AUTOINCREMENT"));
    text.replace(QLatin1String("{double}"), QLatin1String("DOUBLE PRECISION"));
    text.replace(QLatin1String("{blob}"), QLatin1String("BLOB"));
    text.replace(QLatin1String("{bytewise}"), QLatin1String("TEXT"));
    text.replace(QLatin1String("{clustered}"), QLatin1String("WITHOUT ROWID"));
    return text;
}

QStringList SqliteDialect::beginWriting() const {
    return {QStringLiteral("BEGIN IMMEDIATE")};
}

QStringList SqliteDialect::beforeCommit() const {
    return {};
}

QString SqliteDialect::beginReading() const {
    return QStringLiteral("BEGIN");
}

QString SqliteDialect::continueKeys(const QString&) const {
    return {};
}

QString SqliteDialect::channel() const {
    return {};
}

QString SqliteDialect::commitCounter() const {
    return QStringLiteral("PRAGMA data_version");
}

QString SqliteDialect::copyToFile() const {
    return QStringLiteral("VACUUM INTO ?");
}

QString SqliteDialect::checkWhole() const {
    return QStringLiteral("PRAGMA integrity_check");
}

QString SqliteDialect::checkReferences() const {
    return QStringLiteral("PRAGMA foreign_key_check");
}

SqlFailure SqliteDialect::failureOf(const QSqlError& error) const {
    // The engine's primary result codes.
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case 5:
    case 6:
        return SqlFailure::Busy;
    case 8:
        return SqlFailure::ReadOnly;
    case 10:
        return SqlFailure::Disk;
    case 11:
        return SqlFailure::Damaged;
    case 13:
        return SqlFailure::Full;
    case 14:
        return SqlFailure::CannotOpen;
    case 19:
        return error.databaseText().startsWith(QLatin1String("UNIQUE")) ? SqlFailure::NameTaken
                                                                        : SqlFailure::Other;
    case 26:
        return SqlFailure::NotADatabase;
    default:
        return SqlFailure::Other;
    }
}

} // namespace TechDB
