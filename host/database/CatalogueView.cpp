#include "CatalogueView.h"

#include "BuiltInParameters.h"
#include "MessageLoggerInterface.h"
#include "StoredName.h"
#include "TVornCompound.h"
#include "VKError.h"
#include "VornCatalogue.h"

#include <cmath>
#include <exception>

using TechDB::CatalogueStore;
using TechDB::tidiedName;

namespace {

/// The result of an operation, or null and an Error on the log.
template <typename Operation>
auto answered(const Operation& operation) -> decltype(operation()) {
    try {
        return operation();
    } catch (const VKError& error) {
        MessageLoggerInterface::Error(error.text());
    } catch (const std::exception& error) {
        MessageLoggerInterface::Error(QString::fromUtf8(error.what()).toHtmlEscaped());
    }
    return nullptr;
}

double numberOf(const QString& value) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        throw VKError(CatalogueView::tr("<b>%1</b> is not a value that the catalogue can take; it takes "
                                        "numbers; correct it and import the file again.",
                                        "<b>%1</b> n'est pas une valeur pour le catalogue ; il prend des "
                                        "nombres ; corrigez-la et importez à nouveau le fichier.")
                          .arg(value.toHtmlEscaped()));
    }
    return number;
}

} // namespace

CatalogueStore CatalogueView::store() const {
    return m_catalogue.store(m_scope);
}

CatalogueStore CatalogueView::storeToWrite() const {
    if (m_scope == Scope::Published) {
        throw VKError(tr("The published catalogue takes nothing but what is published from the working one; "
                         "write it there and publish it.",
                         "Le catalogue publié ne prend que ce qui est publié depuis le catalogue de travail "
                         "; écrivez-le là et publiez-le."));
    }
    return store();
}

VKObject2* CatalogueView::objectOf(VKObjectType type,
                                   const std::optional<CatalogueStore::Entry>& entry) const {
    return entry ? m_catalogue.object(type, *entry) : nullptr;
}

VKVornRecord* CatalogueView::recordOf(VKObjectType type, const VKObject2* object) const {
    if (object == nullptr || object->type() != type) {
        return nullptr;
    }
    return m_catalogue.record(type, {object->key(), object->name()});
}

VKObject2* CatalogueView::lookupParameter(const QString& name) {
    return answered([&]() -> VKObject2* {
        VKObject2* const builtIn = m_scope == Scope::Published ? m_builtIn.find(name) : nullptr;
        return builtIn != nullptr ? builtIn
                                  : objectOf(VKObjectType::Parameter, store().parameter(tidiedName(name)));
    });
}

VKObject2* CatalogueView::createParameter(const QString& name, const QString& masterName,
                                          const QString& computeFormula, const QString& processType,
                                          int displayOrder, const QString& analysisType,
                                          const QString& studyType, const QString& eicList,
                                          const QString& familyName, const QString& comment,
                                          const QString& literatureReference) {
    TVornParameter parameter;
    parameter.setMasterName(tidiedName(masterName));
    parameter.setComputeFormula(computeFormula);
    parameter.setProcessType(processType);
    parameter.setDisplayOrder(displayOrder);
    parameter.setAnalysisType(analysisType);
    parameter.setStudyType(studyType);
    parameter.setEICList(eicList);
    parameter.setFamilyName(familyName);
    parameter.setComment(comment);
    parameter.setLiteratureReference(literatureReference);
    return answered([&] {
        return objectOf(VKObjectType::Parameter, storeToWrite().addParameter(tidiedName(name), parameter));
    });
}

VKObject2* CatalogueView::findPair(const QString& compoundId, const QString& eicId) {
    return answered([&] {
        return objectOf(VKObjectType::Pair, store().pair(compoundId.toLongLong(), tidiedName(eicId)));
    });
}

VKVornRecord* CatalogueView::pairRecord(const VKObject2* pair) {
    return recordOf(VKObjectType::Pair, pair);
}

VKVornRecord* CatalogueView::addPair(const QString& compoundId, const QString& eicId, const QString& value) {
    return answered([&] {
        return m_catalogue.record(
            VKObjectType::Pair,
            storeToWrite().addPair(compoundId.toLongLong(), tidiedName(eicId), numberOf(value)));
    });
}

VKObject2* CatalogueView::findEIC(const QString& name) {
    return answered([&] { return objectOf(VKObjectType::Eic, store().eic(tidiedName(name))); });
}

VKVornRecord* CatalogueView::addEIC(const QString& name, const QString& value) {
    return answered([&] {
        return m_catalogue.record(VKObjectType::Eic,
                                  storeToWrite().addEic(tidiedName(name), numberOf(value)));
    });
}

VKVornRecord* CatalogueView::compoundRecord(const VKObject2* compound) {
    return recordOf(VKObjectType::Compound, compound);
}

VKObject2* CatalogueView::findByName(const QString& name) {
    return answered([&] { return objectOf(VKObjectType::Compound, store().compound(tidiedName(name))); });
}

VKVornRecord* CatalogueView::addCompound(TechDB::TVornCompound* compound, const QString& value) {
    return answered([&]() -> VKVornRecord* {
        if (compound == nullptr) {
            throw VKError(
                tr("There is no compound to add to the catalogue; import the file again.",
                   "Il n'y a pas de composé à ajouter au catalogue ; importez à nouveau le fichier."));
        }
        compound->setName(tidiedName(compound->name()));
        return m_catalogue.record(VKObjectType::Compound,
                                  storeToWrite().addCompound(*compound, numberOf(value)));
    });
}

void CatalogueView::commitParameters() {
    answered([&]() -> VKObject2* {
        storeToWrite().publishParameters();
        return nullptr;
    });
}
