#pragma once

#include "TMutableObject.h"

#include <QString>

namespace TechDB {

/// What is known by a name.
class TNamedObject : public TMutableObject {
public:
    const QString& name() const { return m_name; }
    void setName(const QString& name) {
        m_name = name;
        setModified(true);
    }

private:
    QString m_name;
};

} // namespace TechDB
