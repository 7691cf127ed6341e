#pragma once

#include <QString>

/// Tool tips of texts from outside: names, cells, paths.
namespace TPlainTip {

/// A tool tip that shows the text letter by letter, broken into lines where it is long; none for no text. A
/// tool tip takes what looks like markup for markup, pictures of files included, unless all of it is.
QString of(const QString& text);

} // namespace TPlainTip
