#pragma once

#include "gradereport/gradekind.h"

#include <string>
#include <string_view>

namespace gradereport {

/// Name of the style class, and of the symbol, of a kind.
[[nodiscard]] std::string_view kindClass(GradeKind kind);

/// Path of a kind's shape around the point where the path stands, for use behind an `M`. Shapes differ so
/// that nobody has to tell kinds apart by colour: disc, diamond, square, dash, triangle, cross.
[[nodiscard]] std::string_view kindShape(GradeKind kind);

/// A drawing of no size that defines the symbol of each kind, to stand once in a page.
[[nodiscard]] std::string symbolDefinitions();

/// The symbol of a kind, in its colour.
[[nodiscard]] std::string kindIcon(GradeKind kind);

} // namespace gradereport
