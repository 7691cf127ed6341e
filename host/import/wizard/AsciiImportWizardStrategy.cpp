#include "AsciiImportWizardStrategy.h"

#include "ColumnMatcher.h"
#include "ImportMapping.h"
#include "TDescriptionVorn.h"
#include "VKDataModelGeneric.h"

AsciiImportWizardStrategy::AsciiImportWizardStrategy() = default;
AsciiImportWizardStrategy::~AsciiImportWizardStrategy() = default;

QVector<TKnownProperty> AsciiImportWizardStrategy::known(TKnownProperty::Family family) {
    QVector<TKnownProperty> general;
    QVector<TKnownProperty> own;
    for (const TKnownProperty& property : TDescriptionVorn().properties()) {
        if (property.family == TKnownProperty::Family::General) {
            general += property;
        } else if (property.family == family) {
            own += property;
        }
    }
    return general + own;
}

void AsciiImportWizardStrategy::writeIDcolumnName(VKDataModelGeneric& table, const QString& name) {
    table.setHeaderData(0, Qt::Vertical, name, idNameRole);
}

int AsciiImportWizardStrategy::matchingIndex(const ColumnHeader& header, const ColumnMatcher& matcher) {
    const int property = matcher.match(header).property;
    return property < 0 ? ColumnMapping::notImported : ColumnMapping::firstProperty + property;
}
