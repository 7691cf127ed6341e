#pragma once

#include "TNamedObject.h"

namespace TechDB {

/// What a database may hold.
class TDatabaseObject : public TNamedObject {
public:
    /// Whether one does.
    virtual bool isStored() const = 0;
};

} // namespace TechDB
