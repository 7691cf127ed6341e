#include "ProjectCopy.h"

#include "BulkInsert.h"
#include "ProjectSchema.h"
#include "SqlError.h"
#include "SqlSnapshot.h"
#include "SqlTransaction.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>

namespace TechDB {

namespace {

constexpr qint64 everything = std::numeric_limits<qint64>::max();

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::ProjectCopy", english, french);
}

[[noreturn]] void refuse(const SqlConnection& target, const QString& why, const QString& advice) {
    throw VKError(translated("The project was not copied to <b>%1</b>: %2.",
                             "Le projet n'a pas été copié vers <b>%1</b> : %2.")
                      .arg(target.shown().toHtmlEscaped(), why),
                  {}, advice);
}

/// The same value, whatever engine it was read from.
QVariant plain(const QVariant& value) {
    if (value.isNull()) {
        return {};
    }
    return value.userType() == QMetaType::Int ? QVariant(value.toLongLong()) : value;
}

std::uint64_t bitsOf(double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

/// Numbers bit for bit: QVariant takes neighbours for equal.
bool isSame(const QVariant& one, const QVariant& other) {
    if (one.userType() != QMetaType::Double || other.userType() != QMetaType::Double) {
        return one == other;
    }
    return bitsOf(one.toDouble()) == bitsOf(other.toDouble());
}

bool isSameRow(const SqlConnection::Values& one, const SqlConnection::Values& other) {
    return std::equal(one.cbegin(), one.cend(), other.cbegin(), other.cend(), isSame);
}

/// The version that an unfinished copy has: that of no project.
int markOfUnfinished() {
    return -ProjectSchema::current().version();
}

} // namespace

struct ProjectCopy::Table {
    QString name;
    QString columns;
    /// The column that holds the key of the object that a row belongs to.
    QString key;
    QString order;
};

/// Tables whose rows belong to the objects of the first one.
struct ProjectCopy::Group {
    QVector<Table> tables;
    int objectsAtOnce;
};

const QVector<ProjectCopy::Group>& ProjectCopy::groups() {
    const auto named = [](const char* name) {
        return Table{QLatin1String(name), QStringLiteral("sample_id, position, name"),
                     QStringLiteral("sample_id"), QStringLiteral("sample_id, position")};
    };
    static const QVector<Group> all{
        {{{"analyses", "id, name, analysis_type, created, point_count, sort_key, search_name", "id", "id"},
          {"curves", "analysis_id, points", "analysis_id", "analysis_id"},
          {"origins", "analysis_id, file, sha256, warnings", "analysis_id", "analysis_id"}},
         100},
        {{{"datasets", "id, name, created, sort_key, search_name", "id", "id"}}, 1000},
        {{{"samples", "id, dataset_id, name, sort_key, search_name", "id", "id"},
          {"sample_properties", "sample_id, position, name, value, unit, comment", "sample_id",
           "sample_id, position"},
          named("sample_rows"),
          named("sample_columns"),
          {"sample_values", "sample_id, row_position, column_position, number_value, text_value", "sample_id",
           "sample_id, row_position, column_position"}},
         20},
    };
    return all;
}

ProjectCopy::ProjectCopy(SqlConnection& source, SqlConnection& target) : m_source(source), m_target(target) {
    prepareTarget();
}

void ProjectCopy::prepareTarget() {
    const ProjectSchema& schema = ProjectSchema::current();
    const QString id = schema.idOf(m_source);
    const QString mark = QStringLiteral("UPDATE project SET schema_version = ? WHERE only_row = 1");
    const std::optional<int> found = schema.findVersion(m_target);
    if (!found) {
        SqlTransaction transaction(m_target);
        schema.create(m_target, id, schema.createdOf(m_source));
        m_target.execute(mark, {markOfUnfinished()});
        transaction.commit();
        return;
    }
    if (*found > 0) {
        refuse(m_target, translated("it holds a project already", "un projet y est déjà"),
               translated("Have another database made for the copy.",
                          "Faites créer une autre base pour la copie."));
    }
    if (*found != markOfUnfinished() || schema.idOf(m_target) != id) {
        refuse(m_target,
               translated("it holds an unfinished copy of another project",
                          "une copie inachevée d'un autre projet y est"),
               translated("Finish that one, or have another database made.",
                          "Achevez-la, ou faites créer une autre base."));
    }
}

void ProjectCopy::run(const CopyProgress& progress) {
    m_progress = progress;
    const SqlSnapshot oneState(m_source);
    m_total = 2 * objectCount();
    for (const Group& group : groups()) {
        copyAll(group);
    }
    for (const Group& group : groups()) {
        compareAll(group);
    }
    finish();
}

qint64 ProjectCopy::objectCount() {
    qint64 objects = 0;
    for (const Group& group : groups()) {
        m_source.select(QStringLiteral("SELECT count(*) FROM ") + group.tables.first().name, {},
                        [&objects](const QSqlQuery& row) { objects += row.value(0).toLongLong(); });
    }
    return objects;
}

void ProjectCopy::forEachRange(const Group& group, const std::function<void(qint64, qint64)>& step) {
    const QString next = QStringLiteral("SELECT id FROM %1 WHERE id > ? ORDER BY id LIMIT %2")
                             .arg(group.tables.first().name)
                             .arg(group.objectsAtOnce);
    qint64 after = -everything;
    for (;;) {
        QVector<qint64> keys;
        m_source.select(next, {after}, [&keys](const QSqlQuery& row) { keys += row.value(0).toLongLong(); });
        if (keys.isEmpty()) {
            break;
        }
        step(after, keys.last());
        after = keys.last();
        count(keys.size());
    }
    step(after, everything); // what the target alone has there
}

ProjectCopy::Rows ProjectCopy::rowsOf(SqlConnection& connection, const Table& table, qint64 after,
                                      qint64 last) {
    const QString statement = QStringLiteral("SELECT %1 FROM %2 WHERE %3 > ? AND %3 <= ? ORDER BY %4")
                                  .arg(table.columns, table.name, table.key, table.order);
    const int columns = table.columns.count(QLatin1Char(',')) + 1;
    Rows rows;
    connection.select(statement, {after, last}, [&rows, columns](const QSqlQuery& row) {
        SqlConnection::Values values;
        values.reserve(columns);
        for (int column = 0; column < columns; ++column) {
            values.append(plain(row.value(column)));
        }
        rows.append(values);
    });
    return rows;
}

bool ProjectCopy::isEqual(const Group& group, qint64 after, qint64 last) {
    return std::all_of(group.tables.cbegin(), group.tables.cend(), [&](const Table& table) {
        const Rows ours = rowsOf(m_source, table, after, last);
        const Rows theirs = rowsOf(m_target, table, after, last);
        return std::equal(ours.cbegin(), ours.cend(), theirs.cbegin(), theirs.cend(), isSameRow);
    });
}

void ProjectCopy::copyAll(const Group& group) {
    forEachRange(group, [&](qint64 after, qint64 last) { copyRange(group, after, last); });
}

void ProjectCopy::copyRange(const Group& group, qint64 after, qint64 last) {
    if (isEqual(group, after, last)) {
        return;
    }
    SqlTransaction transaction(m_target);
    m_target.execute(QStringLiteral("DELETE FROM %1 WHERE id > ? AND id <= ?").arg(group.tables.first().name),
                     {after, last});
    for (const Table& table : group.tables) {
        const int columns = table.columns.count(QLatin1Char(',')) + 1;
        BulkInsert insertion(m_target, QStringLiteral("%1 (%2)").arg(table.name, table.columns), columns);
        const Rows rows = rowsOf(m_source, table, after, last);
        for (const SqlConnection::Values& row : rows) {
            insertion.add(row);
        }
        insertion.finish();
    }
    transaction.commit();
}

void ProjectCopy::compareAll(const Group& group) {
    forEachRange(group, [&](qint64 after, qint64 last) {
        if (!isEqual(group, after, last)) {
            refuse(m_target,
                   translated("what was read back is not what was written",
                              "ce qui a été relu n'est pas ce qui a été écrit"),
                   translated("Copy it once more; what is the same is not written again.",
                              "Copiez-le encore une fois ; ce qui est identique ne sera pas réécrit."));
        }
    });
}

void ProjectCopy::finish() {
    SqlTransaction transaction(m_target);
    for (const Group& group : groups()) {
        const QString statement = m_target.dialect().continueKeys(group.tables.first().name);
        if (!statement.isEmpty()) {
            m_target.run(statement);
        }
    }
    m_target.execute(QStringLiteral("UPDATE project SET schema_version = ? WHERE only_row = 1"),
                     {ProjectSchema::current().version()});
    transaction.commit();
}

void ProjectCopy::count(qint64 objects) {
    m_done += objects;
    m_progress(m_done, m_total);
}

} // namespace TechDB
