#pragma once

#include "AsciiImportWizardStrategy.h"

/// Tables of gas analyses: columns are matched to the properties of gases.
class AsciiImportWizardStrategyGas : public AsciiImportWizardStrategy {
    Q_OBJECT

public:
    void setProperties(QVector<TKnownProperty>& offered) const override;
    void setIDcolumnName(VKDataModelGeneric& table, const QString& name) const override;
    int getDefaultIndex(const ColumnHeader& header, const ColumnMatcher& matcher) const override;
};
