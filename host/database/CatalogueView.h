#pragma once

#include "CatalogueStore.h"
#include "VKObjectType.h"
#include "VKVornDatabaseInterface.h"

#include <QCoreApplication>

#include <optional>

class BuiltInParameters;
class VornCatalogue;

/// What one of the two catalogues shows of the file that holds both. The working one shows all and takes what
/// is new; the published one shows what was published and the built-in parameters, and takes nothing.
class CatalogueView : public VKVornDatabaseInterface {
    Q_DECLARE_TR_FUNCTIONS(CatalogueView)

public:
    using Scope = TechDB::CatalogueStore::Scope;

    /// All three outlive the view.
    CatalogueView(VornCatalogue& catalogue, const BuiltInParameters& builtIn, Scope scope)
        : m_catalogue(catalogue), m_builtIn(builtIn), m_scope(scope) {}

    VKObject2* lookupParameter(const QString& name) override;
    VKObject2* createParameter(const QString& name, const QString& masterName, const QString& computeFormula,
                               const QString& processType, int displayOrder, const QString& analysisType,
                               const QString& studyType, const QString& eicList, const QString& familyName,
                               const QString& comment, const QString& literatureReference) override;
    VKObject2* findPair(const QString& compoundId, const QString& eicId) override;
    VKVornRecord* pairRecord(const VKObject2* pair) override;
    VKVornRecord* addPair(const QString& compoundId, const QString& eicId, const QString& value) override;
    VKObject2* findEIC(const QString& name) override;
    VKVornRecord* addEIC(const QString& name, const QString& value) override;
    VKVornRecord* compoundRecord(const VKObject2* compound) override;
    VKObject2* findByName(const QString& name) override;
    VKVornRecord* addCompound(TechDB::TVornCompound* compound, const QString& value) override;
    void commitParameters() override;

private:
    TechDB::CatalogueStore store() const;
    TechDB::CatalogueStore storeToWrite() const;
    VKObject2* objectOf(VKObjectType type, const std::optional<TechDB::CatalogueStore::Entry>& entry) const;
    VKVornRecord* recordOf(VKObjectType type, const VKObject2* object) const;

    VornCatalogue& m_catalogue;
    const BuiltInParameters& m_builtIn;
    Scope m_scope;
};
