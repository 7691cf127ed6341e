#pragma once

#include <QString>
#include <QStringList>

class QSqlDatabase;
class QSqlError;

namespace TechDB {

/// What a statement can fail of, as far as the user or the code can answer it.
enum class SqlFailure {
    Busy,
    ReadOnly,
    Full,
    Disk,
    Damaged,
    NotADatabase,
    CannotOpen,
    NameTaken,
    /// There is no longer anybody at the other end of the connection.
    Cut,
    Other
};

/// All that differs between one database engine and another. Everything else is SQL that they share.
///
/// Statements may hold these words in braces: {identity} the type of a key that the engine gives and never
/// gives twice, {double} an 8-byte number, {blob} bytes, {bytewise} a text whose order is that of its bytes
/// in UTF-8, {clustered} what follows a table whose rows lie in the order of its primary key.
class SqlDialect {
public:
    SqlDialect() = default;
    virtual ~SqlDialect();
    SqlDialect(const SqlDialect&) = delete;
    SqlDialect& operator=(const SqlDialect&) = delete;

    /// Name of the Qt driver.
    virtual QString driver() const = 0;
    /// Where the database is, as messages and lists may show it.
    virtual QString shown(const QString& place) const = 0;
    /// Whether the rows of a result may be fetched one by one while other statements run.
    virtual bool streamsRows() const = 0;
    /// Points a connection at an existing database; nothing is created by opening it.
    virtual void aim(QSqlDatabase& connection, const QString& place) const = 0;

    /// What a connection runs before anything else; writes nothing.
    virtual QStringList setUp() const = 0;
    /// What it runs once the database is known to be ours.
    virtual QStringList setUpOfOwn() const = 0;
    /// What it runs if all that the database holds can be made again: a commit survives the end of the
    /// program at any moment, but doesn't wait for the disk.
    virtual QStringList setUpOfReplaceable() const = 0;

    /// The statement with its words in braces replaced.
    virtual QString adapted(const QString& statement) const = 0;
    /// Begins a transaction that may write at once: it waits for other writers here and nowhere later.
    virtual QStringList beginWriting() const = 0;
    /// Begins a transaction that reads one state of the database.
    virtual QString beginReading() const = 0;
    /// What a transaction runs before it is committed.
    virtual QStringList beforeCommit() const = 0;
    /// Lets new keys of a table follow those that were given to it from outside; empty if they do.
    virtual QString continueKeys(const QString& table) const = 0;
    /// The channel on which each commit tells the other connections; empty if there is none.
    virtual QString channel() const = 0;
    /// Selects a number that is another one after each commit of another connection; empty if a channel
    /// tells.
    virtual QString commitCounter() const = 0;
    /// Writes a whole copy into a new file, whose path is bound.
    virtual QString copyToFile() const = 0;
    /// Selects one text a row: the problems found, or a single "ok".
    virtual QString checkWhole() const = 0;
    /// Selects one row for each reference to a row that isn't there, its table first.
    virtual QString checkReferences() const = 0;

    virtual SqlFailure failureOf(const QSqlError& error) const = 0;
};

} // namespace TechDB
