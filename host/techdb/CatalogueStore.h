#pragma once

#include <QString>

#include <optional>

class TVornParameter;

namespace TechDB {

class SqlConnection;
class TVornCompound;

/// The catalogue of parameters as rows: compounds, extracted ion chromatograms (EIC), pairs of one of each,
/// and parameters, whose formulas name pairs. All are drafts until they are published. Each operation that
/// writes is a transaction. Failures are thrown as VKError.
class CatalogueStore {
public:
    /// A row as it is found: its key, and the name it bears.
    struct Entry {
        qint64 key;
        QString name;
    };
    enum class Scope { All, Published };

    CatalogueStore(SqlConnection& connection, Scope scope) : m_connection(connection), m_scope(scope) {}

    std::optional<Entry> compound(const QString& name) const;
    std::optional<Entry> eic(const QString& name) const;
    std::optional<Entry> pair(qint64 compound, const QString& eic) const;
    /// By its name or the name of its master; the own name goes before.
    std::optional<Entry> parameter(const QString& name) const;

    /// Stores name and properties under a name that no compound has, and gives the compound its key and its
    /// instant. A value of -9999 is none.
    Entry addCompound(TVornCompound& compound, double value) const;
    Entry addEic(const QString& name, double value) const;
    Entry addPair(qint64 compound, const QString& eic, double value) const;
    /// Takes the place of a draft of this name, which an import that didn't reach its end has left; refused
    /// if a parameter of this name is published.
    Entry addParameter(const QString& name, const TVornParameter& parameter) const;

    /// Publishes all drafts of parameters, with the pair that is the formula of one, its compound and its
    /// EIC.
    void publishParameters() const;

private:
    std::optional<Entry> found(const QString& statement, const QString& name) const;
    void addProperties(qint64 key, const TVornCompound& compound) const;

    SqlConnection& m_connection;
    Scope m_scope;
};

} // namespace TechDB
