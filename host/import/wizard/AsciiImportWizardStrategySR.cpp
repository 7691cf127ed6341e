#include "AsciiImportWizardStrategySR.h"

void AsciiImportWizardStrategySR::setProperties(QVector<TKnownProperty>& offered) const {
    offered = known(TKnownProperty::Family::SourceRock);
}

void AsciiImportWizardStrategySR::setIDcolumnName(VKDataModelGeneric& table, const QString& name) const {
    writeIDcolumnName(table, name);
}

int AsciiImportWizardStrategySR::getDefaultIndex(const ColumnHeader& header,
                                                 const ColumnMatcher& matcher) const {
    return matchingIndex(header, matcher);
}
