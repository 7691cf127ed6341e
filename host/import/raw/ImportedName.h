#pragma once

#include <QString>

/// Names of imported analyses, which are names of files and folders too.
namespace ImportedName {

/// More bytes than this would leave no room, within the 255 that file systems allow, for a number, the
/// extension and what a file is called while it is written.
constexpr int maximumBytes = 220;

/// The name itself, or the nearest one that is the name of one folder within its parent on every system and
/// can be stored: separators and what can't be shown become underscores, blanks around it go, so do the
/// dots of a name that has nothing else, and a long name loses its middle. Never empty.
QString safe(const QString& name);

} // namespace ImportedName
