#include "ProjectSchema.h"

#include "NameText.h"
#include "NaturalOrder.h"
#include "SqlConnection.h"

namespace TechDB {

namespace {

// Instants are texts in UTC as ISO 8601 has them. A curve lies apart from its analysis, so that a list of
// analyses reads no curve. A cell is a number or a text; an empty cell has no row.
QStringList firstVersion() {
    return {
        QStringLiteral("CREATE TABLE analyses ("
                       " id {identity},"
                       " name {bytewise} NOT NULL UNIQUE,"
                       " analysis_type TEXT NOT NULL,"
                       " created TEXT NOT NULL,"
                       " point_count INTEGER NOT NULL CHECK (point_count >= 2))"),
        QStringLiteral("CREATE TABLE curves ("
                       " analysis_id BIGINT PRIMARY KEY REFERENCES analyses (id) ON DELETE CASCADE,"
                       " points {blob} NOT NULL)"),
        QStringLiteral("CREATE TABLE datasets ("
                       " id {identity},"
                       " name {bytewise} NOT NULL UNIQUE,"
                       " created TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE samples ("
                       " id {identity},"
                       " dataset_id BIGINT NOT NULL REFERENCES datasets (id) ON DELETE CASCADE,"
                       " name {bytewise} NOT NULL,"
                       " UNIQUE (dataset_id, name))"),
        QStringLiteral("CREATE TABLE sample_properties ("
                       " sample_id BIGINT NOT NULL REFERENCES samples (id) ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " value TEXT NOT NULL,"
                       " unit TEXT NOT NULL,"
                       " comment TEXT NOT NULL,"
                       " PRIMARY KEY (sample_id, position)) {clustered}"),
        QStringLiteral("CREATE TABLE sample_rows ("
                       " sample_id BIGINT NOT NULL REFERENCES samples (id) ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " PRIMARY KEY (sample_id, position)) {clustered}"),
        QStringLiteral("CREATE TABLE sample_columns ("
                       " sample_id BIGINT NOT NULL REFERENCES samples (id) ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " PRIMARY KEY (sample_id, position)) {clustered}"),
        QStringLiteral("CREATE TABLE sample_values ("
                       " sample_id BIGINT NOT NULL REFERENCES samples (id) ON DELETE CASCADE,"
                       " row_position INTEGER NOT NULL,"
                       " column_position INTEGER NOT NULL,"
                       " number_value {double},"
                       " text_value TEXT,"
                       " PRIMARY KEY (sample_id, row_position, column_position),"
                       " CHECK ((number_value IS NULL) <> (text_value IS NULL))) {clustered}"),
        QStringLiteral("CREATE VIEW dataset_values AS"
                       " SELECT d.name AS dataset, s.name AS sample, r.name AS row_name,"
                       " c.name AS column_name, v.number_value, v.text_value"
                       " FROM sample_values v"
                       " JOIN samples s ON s.id = v.sample_id"
                       " JOIN datasets d ON d.id = s.dataset_id"
                       " JOIN sample_rows r ON r.sample_id = v.sample_id AND r.position = v.row_position"
                       " JOIN sample_columns c ON c.sample_id = v.sample_id"
                       " AND c.position = v.column_position"),
    };
}

// Lists of names are read in their natural order page by page, and looked through: both on an index alone.
QStringList secondVersion() {
    QStringList statements;
    for (const char* const table : {"analyses", "datasets", "samples"}) {
        statements += QStringLiteral("ALTER TABLE %1 ADD COLUMN sort_key {bytewise} NOT NULL DEFAULT ''")
                          .arg(QLatin1String(table));
        statements += QStringLiteral("ALTER TABLE %1 ADD COLUMN search_name {bytewise} NOT NULL DEFAULT ''")
                          .arg(QLatin1String(table));
    }
    return statements +
           QStringList{
               QStringLiteral("CREATE INDEX analyses_by_name ON analyses (sort_key, id, search_name)"),
               QStringLiteral("CREATE INDEX datasets_by_name ON datasets (sort_key, id, search_name)"),
               QStringLiteral("CREATE INDEX samples_by_name"
                              " ON samples (dataset_id, sort_key, id, search_name)"),
           };
}

// An analysis that was not read from a raw file has no row.
QStringList thirdVersion() {
    return {
        QStringLiteral("CREATE TABLE origins ("
                       " analysis_id BIGINT PRIMARY KEY REFERENCES analyses (id) ON DELETE CASCADE,"
                       " file TEXT NOT NULL,"
                       " sha256 TEXT NOT NULL,"
                       " warnings TEXT NOT NULL)"),
    };
}

void writeKeys(SqlConnection& connection, const QString& table) {
    QVector<QPair<qint64, QString>> names;
    connection.select(QStringLiteral("SELECT id, name FROM %1").arg(table), {},
                      [&names](const QSqlQuery& row) {
                          names.append({row.value(0).toLongLong(), row.value(1).toString()});
                      });
    const QString statement =
        QStringLiteral("UPDATE %1 SET sort_key = ?, search_name = ? WHERE id = ?").arg(table);
    for (const auto& [key, name] : qAsConst(names)) {
        connection.execute(statement, {SqlConnection::text(NaturalOrder::key(name)),
                                       SqlConnection::text(NameText::folded(name)), key});
    }
}

SchemaStep toSecondVersion() {
    return {secondVersion(), [](SqlConnection& connection) {
                for (const char* const table : {"analyses", "datasets", "samples"}) {
                    writeKeys(connection, QLatin1String(table));
                }
            }};
}

QStringList probes() {
    return {
        QStringLiteral("SELECT id, name, analysis_type, created, point_count, sort_key, search_name"
                       " FROM analyses LIMIT 0"),
        QStringLiteral("SELECT analysis_id, points FROM curves LIMIT 0"),
        QStringLiteral("SELECT analysis_id, file, sha256, warnings FROM origins LIMIT 0"),
        QStringLiteral("SELECT id, name, created, sort_key, search_name FROM datasets LIMIT 0"),
        QStringLiteral("SELECT id, dataset_id, name, sort_key, search_name FROM samples LIMIT 0"),
        QStringLiteral(
            "SELECT sample_id, position, name, value, unit, comment FROM sample_properties LIMIT 0"),
        QStringLiteral("SELECT sample_id, position, name FROM sample_rows LIMIT 0"),
        QStringLiteral("SELECT sample_id, position, name FROM sample_columns LIMIT 0"),
        QStringLiteral("SELECT sample_id, row_position, column_position, number_value, text_value"
                       " FROM sample_values LIMIT 0"),
    };
}

} // namespace

ProjectSchema::ProjectSchema(const QStringList& creation, const QVector<SchemaStep>& migrations)
    : DatabaseSchema(DatabaseKind::Project, creation, migrations, probes()) {}

const ProjectSchema& ProjectSchema::current() {
    static const ProjectSchema schema(firstVersion() + secondVersion() + thirdVersion(),
                                      {toSecondVersion(), {thirdVersion(), {}}});
    return schema;
}

} // namespace TechDB
