#include "CatalogueStore.h"

#include "SqlConnection.h"
#include "SqlError.h"
#include "SqlTransaction.h"
#include "StoredInstant.h"
#include "StoredName.h"
#include "TVornCompound.h"

#include <QCoreApplication>

namespace TechDB {

namespace {

constexpr double noValue = -9999.0;

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::CatalogueStore", english, french);
}

QVariant valueOrNone(double value) {
    return value == noValue ? QVariant(QVariant::Double) : QVariant(value);
}

[[noreturn]] void throwTaken(const QString& name) {
    throw VKError(
        translated("The catalogue holds <b>%1</b> already.", "Le catalogue contient déjà <b>%1</b>.")
            .arg(name.toHtmlEscaped()),
        {}, translated("Import the file again.", "Importez à nouveau le fichier."));
}

[[noreturn]] void throwUnknown(const QString& name) {
    throw VKError(
        translated("The catalogue doesn't hold <b>%1</b>.", "Le catalogue ne contient pas <b>%1</b>.")
            .arg(name.toHtmlEscaped()),
        {}, translated("Import the file that brings it.", "Importez le fichier qui l'apporte."));
}

/// Runs an INSERT whose name the database itself keeps unique.
qint64 inserted(SqlConnection& connection, const QString& statement, const SqlConnection::Values& values,
                const QString& name) {
    try {
        return connection.insert(statement, values);
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwTaken(name);
        }
        throw;
    }
}

/// What pairs show: both of their parts.
QString pairName(const QString& compound, const QString& eic) {
    return QStringLiteral("%1 / %2").arg(compound, eic);
}

} // namespace

std::optional<CatalogueStore::Entry> CatalogueStore::found(const QString& statement,
                                                           const QString& name) const {
    std::optional<Entry> entry;
    m_connection.select(statement, {SqlConnection::text(name), m_scope == Scope::Published ? 1 : 0},
                        [&entry](const QSqlQuery& row) {
                            entry = Entry{row.value(0).toLongLong(), row.value(1).toString()};
                        });
    return entry;
}

std::optional<CatalogueStore::Entry> CatalogueStore::compound(const QString& name) const {
    return found(QStringLiteral("SELECT id, name FROM compounds WHERE name = ? AND published >= ?"), name);
}

std::optional<CatalogueStore::Entry> CatalogueStore::eic(const QString& name) const {
    return found(QStringLiteral("SELECT id, name FROM eics WHERE name = ? AND published >= ?"), name);
}

std::optional<CatalogueStore::Entry> CatalogueStore::pair(qint64 compound, const QString& eic) const {
    std::optional<Entry> entry;
    m_connection.select(QStringLiteral("SELECT p.id, c.name, e.name FROM pairs p"
                                       " JOIN compounds c ON c.id = p.compound_id"
                                       " JOIN eics e ON e.id = p.eic_id"
                                       " WHERE p.compound_id = ? AND e.name = ? AND p.published >= ?"),
                        {compound, SqlConnection::text(eic), m_scope == Scope::Published ? 1 : 0},
                        [&entry](const QSqlQuery& row) {
                            entry = Entry{row.value(0).toLongLong(),
                                          pairName(row.value(1).toString(), row.value(2).toString())};
                        });
    return entry;
}

std::optional<CatalogueStore::Entry> CatalogueStore::parameter(const QString& name) const {
    const auto own =
        found(QStringLiteral("SELECT id, name FROM parameters WHERE name = ? AND published >= ?"), name);
    return own ? own
               : found(QStringLiteral("SELECT id, name FROM parameters WHERE master_name = ?"
                                      " AND published >= ? ORDER BY id DESC"),
                       name);
}

CatalogueStore::Entry CatalogueStore::addCompound(TVornCompound& compound, double value) const {
    checkName(compound.name());
    const QString now = StoredInstant::now();
    SqlTransaction transaction(m_connection);
    const qint64 key = inserted(
        m_connection, QStringLiteral("INSERT INTO compounds (name, number_value, created) VALUES (?, ?, ?)"),
        {compound.name(), valueOrNone(value), now}, compound.name());
    addProperties(key, compound);
    transaction.commit();
    compound.setKey(key);
    compound.setCreated(StoredInstant::read(now));
    compound.setModified(false);
    return {key, compound.name()};
}

void CatalogueStore::addProperties(qint64 key, const TVornCompound& compound) const {
    const QList<TProperty> properties = compound.properties() + compound.parameterProperties();
    for (int position = 0; position < properties.size(); ++position) {
        m_connection.execute(QStringLiteral("INSERT INTO compound_properties"
                                            " (compound_id, position, name, value) VALUES (?, ?, ?, ?)"),
                             {key, position, properties.at(position).name(),
                              SqlConnection::text(properties.at(position).value())});
    }
}

CatalogueStore::Entry CatalogueStore::addEic(const QString& name, double value) const {
    checkName(name);
    SqlTransaction transaction(m_connection);
    const qint64 key = inserted(
        m_connection, QStringLiteral("INSERT INTO eics (name, number_value, created) VALUES (?, ?, ?)"),
        {name, valueOrNone(value), StoredInstant::now()}, name);
    transaction.commit();
    return {key, name};
}

CatalogueStore::Entry CatalogueStore::addPair(qint64 compound, const QString& eic, double value) const {
    SqlTransaction transaction(m_connection);
    QString compoundName;
    m_connection.select(QStringLiteral("SELECT name FROM compounds WHERE id = ?"), {compound},
                        [&compoundName](const QSqlQuery& row) { compoundName = row.value(0).toString(); });
    if (compoundName.isEmpty()) {
        throwUnknown(QString::number(compound));
    }
    const std::optional<Entry> knownEic = this->eic(eic);
    if (!knownEic) {
        throwUnknown(eic);
    }
    const QString name = pairName(compoundName, eic);
    const qint64 key = inserted(
        m_connection,
        QStringLiteral("INSERT INTO pairs (compound_id, eic_id, number_value, created) VALUES (?, ?, ?, ?)"),
        {compound, knownEic->key, valueOrNone(value), StoredInstant::now()}, name);
    transaction.commit();
    return {key, name};
}

CatalogueStore::Entry CatalogueStore::addParameter(const QString& name,
                                                   const TVornParameter& parameter) const {
    checkName(name);
    SqlTransaction transaction(m_connection);
    m_connection.execute(QStringLiteral("DELETE FROM parameters WHERE name = ? AND published = 0"), {name});
    const qint64 key = inserted(
        m_connection,
        QStringLiteral("INSERT INTO parameters (name, master_name, compute_formula, process_type,"
                       " display_order, analysis_type, study_type, eic_list, family_name, comment,"
                       " literature_reference, created) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {name, SqlConnection::text(parameter.MasterName()), SqlConnection::text(parameter.ComputeFormula()),
         SqlConnection::text(parameter.ProcessType()), parameter.DisplayOrder(),
         SqlConnection::text(parameter.AnalysisType()), SqlConnection::text(parameter.StudyType()),
         SqlConnection::text(parameter.EICList()), SqlConnection::text(parameter.FamilyName()),
         SqlConnection::text(parameter.Comment()), SqlConnection::text(parameter.LiteratureReference()),
         StoredInstant::now()},
        name);
    transaction.commit();
    return {key, name};
}

void CatalogueStore::publishParameters() const {
    SqlTransaction transaction(m_connection);
    m_connection.execute(QStringLiteral("UPDATE pairs SET published = 1 WHERE published = 0"
                                        " AND '[' || id || ']' IN"
                                        " (SELECT compute_formula FROM parameters WHERE published = 0)"),
                         {});
    m_connection.execute(QStringLiteral("UPDATE compounds SET published = 1 WHERE published = 0"
                                        " AND id IN (SELECT compound_id FROM pairs WHERE published = 1)"),
                         {});
    m_connection.execute(QStringLiteral("UPDATE eics SET published = 1 WHERE published = 0"
                                        " AND id IN (SELECT eic_id FROM pairs WHERE published = 1)"),
                         {});
    m_connection.execute(QStringLiteral("UPDATE parameters SET published = 1 WHERE published = 0"), {});
    transaction.commit();
}

} // namespace TechDB
