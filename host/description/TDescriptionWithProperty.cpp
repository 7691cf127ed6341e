#include "TDescriptionWithProperty.h"

TDescriptionWithProperty::~TDescriptionWithProperty() = default;

QHash<QString, QString> TDescriptionWithProperty::getPropertiesLabels(bool allForms) const {
    QHash<QString, QString> labels;
    for (const TKnownProperty& property : properties()) {
        labels.insert(property.key, property.label);
        if (!allForms) {
            continue;
        }
        if (!property.unit.isEmpty()) {
            labels.insert(property.key + QStringLiteral("/unit"),
                          QStringLiteral("%1 (%2)").arg(property.label, property.unit));
        }
        labels.insert(property.key + QStringLiteral("/en"), property.english);
        labels.insert(property.key + QStringLiteral("/fr"), property.french);
    }
    return labels;
}
