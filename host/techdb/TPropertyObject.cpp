#include "TPropertyObject.h"

#include <algorithm>

namespace TechDB {

QString TPropertyObject::property(const QString& name) const {
    const auto found = std::find_if(m_properties.begin(), m_properties.end(),
                                    [&name](const TProperty& one) { return one.name() == name; });
    return found == m_properties.end() ? QString() : found->value();
}

void TPropertyObject::setProperty(const QString& name, const QString& value) {
    const auto found = std::find_if(m_properties.begin(), m_properties.end(),
                                    [&name](const TProperty& one) { return one.name() == name; });
    if (found == m_properties.end()) {
        m_properties.append(TProperty(name, value));
        return;
    }
    *found = TProperty(name, value);
}

} // namespace TechDB
