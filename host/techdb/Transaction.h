#pragma once

#include "SqlTransaction.h"

#include <optional>

namespace TechDB {

class TDatabase;

/// Makes several operations of a database one: all of them come about with `commit`, none without. Within
/// another one it is a savepoint, and `commit` leaves the decision to that one. Ends before what it is
/// within, and before its database. While it is open no other window can write: no dialog is shown then.
class Transaction {
public:
    /// Waits some seconds for another writer, then throws VKError.
    explicit Transaction(TDatabase& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Once. Throws VKError if the changes can't be written; then none are. The outermost one makes the
    /// database announce them.
    void commit();

private:
    TDatabase& m_database;
    const int m_firstChange;
    std::optional<SqlTransaction> m_sql;
};

} // namespace TechDB
