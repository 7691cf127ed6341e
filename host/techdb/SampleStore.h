#pragma once

#include "SampleTable.h"

#include <QVector>

namespace TechDB {

class SqlConnection;

/// The tables of samples as rows. Writing takes a transaction of the caller's. Failures are thrown as
/// VKError.
class SampleStore {
public:
    /// More cells in one sample than any table of a laboratory has; a file that claims more is refused.
    static constexpr qint64 maximumCells = 20'000'000;

    explicit SampleStore(SqlConnection& connection) : m_connection(connection) {}

    /// Refuses a table that is too large or that `SampleTable` doesn't allow. A minus sign of zero is not
    /// kept.
    static void check(const SampleTable& table);

    /// Gives a sample that has none its table, which has been checked.
    void add(qint64 sample, const SampleTable& table);

    /// Puts the columns of a table that has been checked behind those of a sample, which keeps all it has. A
    /// row goes to the sample's row of the same name, the second of one name to the second of it; where there
    /// is none, a new one comes at the end. Properties that the sample has word for word are not repeated.
    /// Refuses what would make the sample too large.
    void addColumns(qint64 sample, const SampleTable& table);

    SampleTable table(qint64 sample) const;

private:
    void addNames(const QString& table, qint64 sample, int firstPosition, const QStringList& names);
    void addProperties(qint64 sample, int firstPosition, const QList<TProperty>& properties);
    void addValues(qint64 sample, const QVector<int>& rowPositions, int firstColumn,
                   const SampleTable& table);
    void readValues(qint64 sample, SampleTable& table) const;
    QStringList names(const QString& statement, qint64 sample) const;
    QList<TProperty> properties(qint64 sample) const;
    int columnCount(qint64 sample) const;

    SqlConnection& m_connection;
};

} // namespace TechDB
