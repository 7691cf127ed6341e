#include "CustomImportCtrl.h"

#include "AsciiImportWizardStrategyCustom.h"
#include "CustomImportEditor.h"
#include "MessageLoggerInterface.h"
#include "TDescriptionVorn.h"
#include "TVornCompoundPrivate.h"
#include "VKDatabaseVornMGR.h"
#include "VKObject2.h"
#include "VKVornDatabaseInterface.h"

#include <QAbstractItemModel>
#include <QStringList>

VORN_KEEP_TR(CustomImportCtrl)

namespace {

// What the catalogue takes for a value that nobody gave.
const QString NO_VALUE_TEXT = QString::number(-9999, 10);

const QString noIdentifier = QStringLiteral("-1");
const QString noneName = QStringLiteral("none");
const QString userDefined = QStringLiteral("User defined");

// Asked for each time: the host may open its catalogues anew at any moment.
VKVornDatabaseInterface* workingCatalogue() {
    return VKDatabaseVornMGR::getInstance()->db(9);
}

VKVornDatabaseInterface* publishedCatalogue() {
    return VKDatabaseVornMGR::getInstance()->db(10);
}

QString bold(const QString& name) {
    return QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped());
}

} // namespace

CustomImportCtrl::CustomImportCtrl() {
    m_moduleLabel = tr("Custom import", "Import personnalisé");
}

CustomImportCtrl::~CustomImportCtrl() = default;

VornEditor* CustomImportCtrl::initEditor() {
    return new CustomImportEditor(m_moduleLabel, model());
}

AsciiImportWizardStrategy* CustomImportCtrl::getStrategy() {
    return new AsciiImportWizardStrategyCustom;
}

void CustomImportCtrl::specificProcess(const QAbstractItemModel* model) {
    if (model == nullptr) {
        MessageLoggerInterface::Error(
            tr("Impossible to retrieve imported data during pseudo-compounds creation",
               "Impossible de récupérer les données importées lors de la création des pseudo-composés"));
        return;
    }
    const QString noneEIC = getNoneEIC();
    if (noneEIC == noIdentifier) {
        MessageLoggerInterface::Error(
            tr("An internal error occurred: impossible to create pseudo-compounds",
               "Une erreur interne est survenue : impossible de créer des pseudo-composés"));
        return;
    }
    QStringList existing;
    QStringList added;
    const QStringList builtIn = TDescriptionVorn().getPropertiesLabels(true).values();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString name = model->headerData(row, Qt::Vertical, Qt::DisplayRole).toString();
        if (name.isEmpty() || builtIn.contains(name)) {
            continue;
        }
        if (isParameterExists(name)) {
            existing.append(bold(name));
        } else if (addParameter(name, noneEIC)) {
            added.append(bold(name));
        }
    }
    report(existing, added);
}

void CustomImportCtrl::report(const QStringList& existing, const QStringList& added) {
    // The names are bold one by one and the list once more: a message can be cut into names by its tags.
    if (!existing.isEmpty()) {
        MessageLoggerInterface::Warning(
            tr("Parameter(s) <b>%1</b> already exist(s) in Vorn database",
               "Le(s) paramètre(s) <b>%1</b> existe(nt) déjà en base de données Vorn ")
                .arg(existing.join(", ")));
    }
    if (!added.isEmpty()) {
        workingCatalogue()->commitParameters();
        MessageLoggerInterface::Information(
            tr("Parameter(s) <b>%1</b> were(was) successfully added to  Vorn database",
               "Le(s) paramètre(s) <b>%1</b> ont été correctement ajouté(s) en base de données Vorn")
                .arg(added.join(", ")));
    }
}

bool CustomImportCtrl::addParameter(const QString& name, const QString& noneEIC) {
    const QString compoundID = getCompoundID(name);
    if (compoundID == noIdentifier) {
        return false;
    }
    const auto* const pair = workingCatalogue()->findPair(compoundID, noneEIC);
    const auto* const record = pair != nullptr
                                   ? workingCatalogue()->pairRecord(pair)
                                   : workingCatalogue()->addPair(compoundID, noneEIC, NO_VALUE_TEXT);
    if (record == nullptr) {
        MessageLoggerInterface::Error(tr("An error occurred while creating parameter %1",
                                         "Une erreur est survenue lors de la création du paramètre %1")
                                          .arg(name.toHtmlEscaped()));
        return false;
    }
    const QString formula = QStringLiteral("[%1]").arg(record->recordKey());
    return workingCatalogue()->createParameter(name, name, formula, userDefined, 0, userDefined, userDefined,
                                               noneName, userDefined, QStringLiteral(""),
                                               QString()) != nullptr;
}

bool CustomImportCtrl::isParameterExists(const QString& name) {
    return publishedCatalogue()->findByName(name) != nullptr ||
           publishedCatalogue()->lookupParameter(name) != nullptr;
}

QString CustomImportCtrl::getCompoundID(const QString& name) {
    if (const auto* const compound = workingCatalogue()->findByName(name)) {
        const auto* const record = workingCatalogue()->compoundRecord(compound);
        return record != nullptr ? record->recordId() : noIdentifier;
    }
    TechDB::TVornCompoundPrivate pseudoCompound(QStringLiteral("0")); // the catalogue keeps a copy
    pseudoCompound.setCompoundName(name);
    pseudoCompound.setAnalysisType(userDefined);
    const auto* const record = workingCatalogue()->addCompound(&pseudoCompound, NO_VALUE_TEXT);
    return record != nullptr ? record->recordId() : noIdentifier;
}

QString CustomImportCtrl::getNoneEIC() {
    // By its name if it is there and by its identifier if it was made just now: the catalogue takes both.
    if (const VKObject2* const eic = workingCatalogue()->findEIC(noneName)) {
        return eic->name();
    }
    const auto* const record = workingCatalogue()->addEIC(noneName, NO_VALUE_TEXT);
    return record != nullptr ? record->recordId() : noIdentifier;
}
