#include "SqlDialect.h"

namespace TechDB {

SqlDialect::~SqlDialect() = default;

} // namespace TechDB
