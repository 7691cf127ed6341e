#include "ForeignCommits.h"

#include "SqlConnection.h"
#include "VKError.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

namespace TechDB {

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds firstTry = 2s;
constexpr std::chrono::milliseconds rarestTry = 1min;
/// The window waits while a server that doesn't answer is tried: for this part of the time at most.
constexpr int shareOfTries = 30;

} // namespace

ForeignCommits::ForeignCommits(SqlConnection& connection) : m_connection(connection) {
    if (m_connection.dialect().commitCounter().isEmpty()) {
        m_connection.listen([this] { emit happened(); });
        connect(&m_timer, &QTimer::timeout, this, &ForeignCommits::listenAgain);
        m_timer.start(firstTry);
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

// One that was made anew tells that something may have happened meanwhile.
void ForeignCommits::listenAgain() {
    if (!m_connection.isCut() || m_connection.inTransaction()) {
        return;
    }
    QElapsedTimer clock;
    clock.start();
    try {
        m_connection.reopenIfCut();
        m_timer.setInterval(firstTry);
    } catch (const VKError&) {
        // Whoever works with the database next is told.
        const std::chrono::milliseconds tried(clock.elapsed());
        const auto rarer = std::min(2 * m_timer.intervalAsDuration(), rarestTry);
        m_timer.setInterval(std::max(rarer, shareOfTries * tried));
    }
}

} // namespace TechDB
