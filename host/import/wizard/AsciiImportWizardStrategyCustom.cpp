#include "AsciiImportWizardStrategyCustom.h"

#include "ImportMapping.h"

void AsciiImportWizardStrategyCustom::setProperties(QVector<TKnownProperty>& offered) const {
    offered.clear();
}

void AsciiImportWizardStrategyCustom::setIDcolumnName(VKDataModelGeneric& table, const QString& name) const {
    writeIDcolumnName(table, name);
}

int AsciiImportWizardStrategyCustom::getDefaultIndex(const ColumnHeader&, const ColumnMatcher&) const {
    return ColumnMapping::asItIs;
}
