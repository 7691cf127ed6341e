#pragma once

#include "TCompound.h"
#include "TVornParameter.h"

namespace TechDB {

/// A compound that studies know as a parameter.
class TVornCompound : public TCompound, public TVornParameter {};

} // namespace TechDB
