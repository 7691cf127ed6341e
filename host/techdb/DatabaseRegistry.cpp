#include "DatabaseRegistry.h"

#include "TDatabase.h"

#include <algorithm>
#include <vector>

namespace TechDB::DatabaseRegistry {

namespace {

std::vector<TDatabase*>& openDatabases() {
    static std::vector<TDatabase*> databases;
    return databases;
}

} // namespace

void add(TDatabase* database) {
    openDatabases().push_back(database);
}

void remove(TDatabase* database) {
    std::vector<TDatabase*>& databases = openDatabases();
    databases.erase(std::remove(databases.begin(), databases.end(), database), databases.end());
}

TDatabase* find(const QString& projectId) {
    const std::vector<TDatabase*>& databases = openDatabases();
    const auto found =
        std::find_if(databases.rbegin(), databases.rend(),
                     [&projectId](const TDatabase* database) { return database->projectId() == projectId; });
    return found == databases.rend() ? nullptr : *found;
}

} // namespace TechDB::DatabaseRegistry
