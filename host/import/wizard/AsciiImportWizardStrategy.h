#pragma once

#include "TKnownProperty.h"

#include <QObject>
#include <QVector>

class ColumnMatcher;
class VKDataModelGeneric;
struct ColumnHeader;

/// What the import wizard does differently for each kind of table: which properties it offers, what it
/// proposes for a column, and how the table that it makes names the samples. Holds nothing of a single run.
/// The name of the class keeps the remembered choices of the kinds apart.
class AsciiImportWizardStrategy : public QObject {
    Q_OBJECT

public:
    /// The role under which section 0 of the table's vertical header holds the identifying column's name.
    static constexpr int idNameRole = 5;

    AsciiImportWizardStrategy();
    ~AsciiImportWizardStrategy() override;

    /// Replaces the list by the properties that columns can be imported as, in the order in which they are
    /// offered. None; columns are then imported as they are or not at all.
    virtual void setProperties(QVector<TKnownProperty>& offered) const = 0;

    /// Tells the finished table which of its columns names the samples.
    virtual void setIDcolumnName(VKDataModelGeneric& table, const QString& name) const = 0;

    /// What is proposed for a column, as a place among the choices: `ColumnMapping::notImported`,
    /// `ColumnMapping::asItIs`, or from `ColumnMapping::firstProperty` on the properties offered, which
    /// `matcher` knows.
    virtual int getDefaultIndex(const ColumnHeader& header, const ColumnMatcher& matcher) const = 0;

protected:
    /// Of the host's catalogue, those of one family, and before them the general ones.
    static QVector<TKnownProperty> known(TKnownProperty::Family family);
    static void writeIDcolumnName(VKDataModelGeneric& table, const QString& name);
    /// The property that the matcher finds, else `ColumnMapping::notImported`.
    static int matchingIndex(const ColumnHeader& header, const ColumnMatcher& matcher);
};
