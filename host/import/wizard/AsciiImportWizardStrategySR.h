#pragma once

#include "AsciiImportWizardStrategy.h"

/// Tables of source-rock analyses: columns are matched to the properties of source rocks.
class AsciiImportWizardStrategySR : public AsciiImportWizardStrategy {
    Q_OBJECT

public:
    void setProperties(QVector<TKnownProperty>& offered) const override;
    void setIDcolumnName(VKDataModelGeneric& table, const QString& name) const override;
    int getDefaultIndex(const ColumnHeader& header, const ColumnMatcher& matcher) const override;
};
