#include "AsciiImportWizardStrategyGas.h"

void AsciiImportWizardStrategyGas::setProperties(QVector<TKnownProperty>& offered) const {
    offered = known(TKnownProperty::Family::Gas);
}

void AsciiImportWizardStrategyGas::setIDcolumnName(VKDataModelGeneric& table, const QString& name) const {
    writeIDcolumnName(table, name);
}

int AsciiImportWizardStrategyGas::getDefaultIndex(const ColumnHeader& header,
                                                  const ColumnMatcher& matcher) const {
    return matchingIndex(header, matcher);
}
