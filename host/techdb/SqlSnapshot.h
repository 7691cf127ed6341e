#pragma once

namespace TechDB {

class SqlConnection;

/// As long as it lives, its connection reads one state of the database, whatever others commit meanwhile.
/// Nothing is written through the connection in that time.
class SqlSnapshot {
public:
    explicit SqlSnapshot(SqlConnection& connection);
    ~SqlSnapshot();
    SqlSnapshot(const SqlSnapshot&) = delete;
    SqlSnapshot& operator=(const SqlSnapshot&) = delete;

private:
    SqlConnection& m_connection;
};

} // namespace TechDB
