#include "BuiltInParameters.h"

#include "TDescriptionVorn.h"

BuiltInParameters::BuiltInParameters() {
    const TDescriptionVorn description;
    const QVector<TKnownProperty>& properties = description.properties();
    for (int i = 0; i < properties.size(); ++i) {
        const TKnownProperty& property = properties.at(i);
        m_parameters.push_back(
            std::make_unique<VKVornObject>(VKObjectType::Parameter, -1 - i, property.label));
        const QStringList names =
            QStringList{property.label, property.english, property.french} + property.aliases;
        for (const QString& name : names) {
            m_byPlainName.insert(TKnownProperty::plain(name), m_parameters.back().get());
        }
    }
}

VKVornObject* BuiltInParameters::find(const QString& name) const {
    return m_byPlainName.value(TKnownProperty::plain(name));
}
