#include "ForeignCommits.h"

#include "SqlConnection.h"
#include "VKError.h"

#include <chrono>

namespace TechDB {

using namespace std::chrono_literals;

ForeignCommits::ForeignCommits(SqlConnection& connection) : m_connection(connection) {
    if (m_connection.dialect().commitCounter().isEmpty()) {
        m_connection.listen([this] { emit happened(); });
        return;
    }
    m_known = counted();
    connect(&m_timer, &QTimer::timeout, this, &ForeignCommits::look);
    m_timer.start(1s);
}

qint64 ForeignCommits::counted() const {
    qint64 count = 0;
    m_connection.select(m_connection.dialect().commitCounter(), {},
                        [&count](const QSqlQuery& row) { count = row.value(0).toLongLong(); });
    return count;
}

void ForeignCommits::look() {
    try {
        const qint64 present = counted();
        if (present != m_known) {
            m_known = present;
            emit happened();
        }
    } catch (const VKError&) {
        // Whoever works with the database next is told; a look each second would fill the log.
    }
}

} // namespace TechDB
