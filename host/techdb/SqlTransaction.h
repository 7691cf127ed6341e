#pragma once

namespace TechDB {

class SqlConnection;

/// A transaction that writes: the first of a connection begins one, those within it are savepoints, to be
/// ended in the reverse order. What isn't committed is rolled back at the end of its life.
///
/// When the engine gives a whole transaction up by itself, as it may when the disk is full, what is still
/// open of it can neither be committed nor hold a savepoint: the next write would be on its own.
class SqlTransaction {
public:
    explicit SqlTransaction(SqlConnection& connection);
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;

    /// Once. If it throws, nothing was written.
    void commit();

private:
    void begin();
    void checkNotGivenUp() const;
    void rollBack() noexcept;

    SqlConnection& m_connection;
    const int m_level;
    bool m_open = true;
};

} // namespace TechDB
