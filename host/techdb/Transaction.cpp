#include "Transaction.h"

#include "SqlConnection.h"
#include "TDatabase.h"

namespace TechDB {

Transaction::Transaction(TDatabase& database)
    : m_database(database), m_firstChange(database.m_changes.size()),
      m_sql(std::in_place, *database.m_connection) {}

Transaction::~Transaction() {
    if (!m_sql) {
        return;
    }
    m_sql.reset();
    m_database.takeBackChanges(m_firstChange);
}

void Transaction::commit() {
    m_sql->commit();
    m_sql.reset();
    if (!m_database.m_connection->inTransaction()) {
        m_database.announceChanges();
    }
}

} // namespace TechDB
