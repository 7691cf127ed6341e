#include "SqlTransaction.h"

#include "SqlConnection.h"
#include "VKError.h"

namespace TechDB {

namespace {

QString savepoint(const char* statement, int level) {
    return QStringLiteral("%1 level_%2").arg(QLatin1String(statement)).arg(level);
}

} // namespace

SqlTransaction::SqlTransaction(SqlConnection& connection)
    : m_connection(connection), m_level(connection.m_openTransactions) {
    m_connection.run(m_level == 0 ? m_connection.dialect().beginWriting() : savepoint("SAVEPOINT", m_level));
    ++m_connection.m_openTransactions;
}

SqlTransaction::~SqlTransaction() {
    if (m_open) {
        rollBack();
    }
}

void SqlTransaction::commit() {
    m_connection.run(m_level == 0 ? QStringLiteral("COMMIT") : savepoint("RELEASE SAVEPOINT", m_level));
    m_open = false;
    --m_connection.m_openTransactions;
}

void SqlTransaction::rollBack() noexcept {
    m_open = false;
    --m_connection.m_openTransactions;
    try {
        if (m_level == 0) {
            m_connection.run(QStringLiteral("ROLLBACK"));
            return;
        }
        m_connection.run(savepoint("ROLLBACK TO SAVEPOINT", m_level));
        m_connection.run(savepoint("RELEASE SAVEPOINT", m_level));
    } catch (const VKError&) {
        // The engine has rolled back by itself, as it does when the disk is full: there is nothing to undo,
        // and the failure that led here is on its way to the user.
    }
}

} // namespace TechDB
