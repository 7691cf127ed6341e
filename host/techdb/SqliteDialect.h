#pragma once

#include "SqlDialect.h"

namespace TechDB {

/// One file through SQLite, whose place is its path. Readers and one writer work side by side (write-ahead
/// log); a writer waits for another one for up to five seconds.
class SqliteDialect : public SqlDialect {
public:
    QString driver() const override;
    QString shown(const QString& place) const override;
    bool streamsRows() const override;
    void aim(QSqlDatabase& connection, const QString& place) const override;
    QStringList setUp() const override;
    QStringList setUpOfOwn() const override;
    QStringList setUpOfReplaceable() const override;
    QString adapted(const QString& statement) const override;
    QStringList beginWriting() const override;
    QString beginReading() const override;
    QStringList beforeCommit() const override;
    QString continueKeys(const QString& table) const override;
    QString channel() const override;
    QString commitCounter() const override;
    QString copyToFile() const override;
    QString checkWhole() const override;
    QString checkReferences() const override;
    SqlFailure failureOf(const QSqlError& error) const override;
};

} // namespace TechDB
