#include "SqlSnapshot.h"

#include "SqlConnection.h"
#include "VKError.h"

namespace TechDB {

SqlSnapshot::SqlSnapshot(SqlConnection& connection) : m_connection(connection) {
    m_connection.run(m_connection.dialect().beginReading());
    ++m_connection.m_openTransactions;
}

SqlSnapshot::~SqlSnapshot() {
    try {
        m_connection.run(QStringLiteral("ROLLBACK"));
    } catch (const VKError&) {
        // It was only read, and who reads next is told of a connection that is gone.
    }
    --m_connection.m_openTransactions;
}

} // namespace TechDB
