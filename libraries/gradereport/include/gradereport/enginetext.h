#pragma once

#include "gradereport/language.h"

#include <string>

namespace gradereport {

/// What the engine says of a curve that it can't grade: the text of its exception without the places in the
/// code, in the language. What the standard library says has no language but its own.
[[nodiscard]] std::string engineText(const std::string& what, Language language);

} // namespace gradereport
