#pragma once

#include "AsciiImportWizardStrategy.h"

/// Tables whose columns the application does not know: all are imported as they are.
class AsciiImportWizardStrategyCustom : public AsciiImportWizardStrategy {
    Q_OBJECT

public:
    void setProperties(QVector<TKnownProperty>& offered) const override;
    void setIDcolumnName(VKDataModelGeneric& table, const QString& name) const override;
    int getDefaultIndex(const ColumnHeader& header, const ColumnMatcher& matcher) const override;
};
