#pragma once

#include "TFileObject.h"
#include "TObjectPrivate.h"
#include "TVornCompound.h"

namespace TechDB {

/// A compound that a user makes up: a pseudo-compound stands for a quantity that was measured and is no
/// molecule.
class TVornCompoundPrivate : public TObjectPrivate, public TFileObject, public TVornCompound {
public:
    explicit TVornCompoundPrivate(const QString& number) : TObjectPrivate(number) {}
};

} // namespace TechDB
