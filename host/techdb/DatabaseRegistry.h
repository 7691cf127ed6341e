#pragma once

#include <QString>

namespace TechDB {

class TDatabase;

/// The databases that are open in this process, so that what was dragged can be found again. For the
/// interface thread.
namespace DatabaseRegistry {

/// Not owned; found from now on.
void add(TDatabase* database);
/// Before it is closed; nothing for one that is not open.
void remove(TDatabase* database);

/// The database that was opened last among those of a project; null if none is open.
TDatabase* find(const QString& projectId);

} // namespace DatabaseRegistry

} // namespace TechDB
