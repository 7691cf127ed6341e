#pragma once

#include <QString>

namespace TechDB {

/// Throws VKError if a text can't be the name of a stored object: a name isn't blank, has no blank at either
/// end, no control character and at most `maximumNameLength` characters, and is whole Unicode, so that it is
/// read as it was written.
void checkName(const QString& name);

constexpr int maximumNameLength = 255;

} // namespace TechDB
