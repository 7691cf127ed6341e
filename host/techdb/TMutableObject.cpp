#include "TMutableObject.h"

namespace TechDB {

TMutableObject::~TMutableObject() = default;

} // namespace TechDB
