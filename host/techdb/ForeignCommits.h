#pragma once

#include <QObject>
#include <QTimer>

namespace TechDB {

class SqlConnection;

/// Tells when another connection, that of another window or of another desk, has committed something: at once
/// where the database tells, otherwise within a second. Where the connection was cut meanwhile, it is tried
/// anew, ever more rarely, until it holds. Needs an event loop.
class ForeignCommits : public QObject {
    Q_OBJECT

public:
    explicit ForeignCommits(SqlConnection& connection);

signals:
    void happened();

private:
    qint64 counted() const;
    void look();
    void listenAgain();

    SqlConnection& m_connection;
    qint64 m_known = 0;
    QTimer m_timer;
};

} // namespace TechDB
