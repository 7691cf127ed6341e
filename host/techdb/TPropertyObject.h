#pragma once

#include "TProperty.h"

#include <QList>

namespace TechDB {

/// What has properties, each a name and a value; what was never set has none.
class TPropertyObject {
public:
    /// Null if it was not set.
    QString property(const QString& name) const;
    void setProperty(const QString& name, const QString& value);
    /// In the order in which they were first set.
    const QList<TProperty>& properties() const { return m_properties; }

private:
    QList<TProperty> m_properties;
};

} // namespace TechDB
