#pragma once

#include <QString>

namespace TechDB {

/// Throws VKError if a text can't be the name of a stored object: a name isn't blank, has no blank at either
/// end, no control character and at most `maximumNameLength` characters, and is whole Unicode, so that it is
/// read as it was written.
void checkName(const QString& name);

/// A name as a cell of a spreadsheet holds it, made fit for storing: blanks at its ends don't count, and line
/// breaks and other control characters count as blanks.
QString tidiedName(QString name);

constexpr int maximumNameLength = 255;

} // namespace TechDB
