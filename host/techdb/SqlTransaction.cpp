#include "SqlTransaction.h"

#include "SqlConnection.h"
#include "VKError.h"

#include <QCoreApplication>

namespace TechDB {

namespace {

QString savepoint(const char* statement, int level) {
    return QStringLiteral("%1 level_%2").arg(QLatin1String(statement)).arg(level);
}

void runAll(SqlConnection& connection, const QStringList& statements) {
    for (const QString& statement : statements) {
        connection.run(statement);
    }
}

} // namespace

SqlTransaction::SqlTransaction(SqlConnection& connection)
    : m_connection(connection), m_level(connection.m_openTransactions) {
    if (m_level == 0) {
        begin();
    } else {
        checkNotGivenUp();
        m_connection.run(savepoint("SAVEPOINT", m_level));
        ++m_connection.m_openTransactions;
    }
}

SqlTransaction::~SqlTransaction() {
    if (m_open) {
        rollBack();
    }
}

void SqlTransaction::begin() {
    const QStringList statements = m_connection.dialect().beginWriting();
    m_connection.run(statements.first());
    ++m_connection.m_openTransactions;
    m_connection.m_givenUp = false;
    try {
        runAll(m_connection, statements.mid(1));
    } catch (...) {
        rollBack();
        throw;
    }
}

void SqlTransaction::commit() {
    checkNotGivenUp();
    if (m_level == 0) {
        runAll(m_connection, m_connection.dialect().beforeCommit());
        m_connection.run(QStringLiteral("COMMIT"));
    } else {
        m_connection.run(savepoint("RELEASE SAVEPOINT", m_level));
    }
    m_open = false;
    --m_connection.m_openTransactions;
}

void SqlTransaction::checkNotGivenUp() const {
    if (m_connection.m_givenUp) {
        throw VKError(QCoreApplication::translate(
                          "TechDB::SqlTransaction",
                          "The %2 <b>%1</b> took back all that was being written, after a failure before.",
                          "Le %2 <b>%1</b> a annulé toute l'écriture en cours, suite à un échec précédent.")
                          .arg(m_connection.shown().toHtmlEscaped(), nameOf(m_connection.kind())),
                      {},
                      QCoreApplication::translate("TechDB::SqlTransaction", "Remove its cause and try again.",
                                                  "Supprimez-en la cause et essayez à nouveau."));
    }
}

void SqlTransaction::rollBack() noexcept {
    m_open = false;
    --m_connection.m_openTransactions;
    if (m_connection.m_isCut) { // what was written has gone with the connection
        m_connection.m_givenUp = true;
        return;
    }
    try {
        if (m_level == 0) {
            m_connection.run(QStringLiteral("ROLLBACK"));
            return;
        }
        m_connection.run(savepoint("ROLLBACK TO SAVEPOINT", m_level));
        m_connection.run(savepoint("RELEASE SAVEPOINT", m_level));
    } catch (const VKError&) {
        // The engine has rolled back by itself: there is nothing to undo, and the failure that led here is on
        // its way to the user.
        m_connection.m_givenUp = true;
    }
}

} // namespace TechDB
