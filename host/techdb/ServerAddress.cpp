#include "ServerAddress.h"

#include "VKError.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QStringList>
#include <QUrlQuery>

namespace TechDB {

namespace {

const QString passwordOption = QStringLiteral("password");

/// Long enough for a server far away, short enough for a window that waits.
const QString patience = QStringLiteral("10"); // seconds

bool isOption(const QString& name) {
    static const QRegularExpression letters(QStringLiteral("^[a-z_]+$"));
    return letters.match(name).hasMatch();
}

/// A value as the driver's list of options takes it. The driver makes blanks of semicolons.
bool isValue(const QString& value) {
    return !value.contains(QLatin1Char(';')) && !value.contains(QChar::Null);
}

QString quoted(QString value) {
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}

} // namespace

bool ServerAddress::isAddress(const QString& place) {
    const QString start = place.trimmed().left(14).toLower();
    return start.startsWith(QLatin1String("postgresql://")) || start.startsWith(QLatin1String("postgres://"));
}

ServerAddress::ServerAddress(const QString& place) : m_url(place.trimmed(), QUrl::StrictMode) {
    const auto refuse = [](const QString& why) {
        // Not with the text: it may hold a password.
        throw VKError(tr("This is no address of a project on a server: %1.",
                         "Ce n'est pas une adresse de projet sur un serveur : %1.")
                          .arg(why),
                      {},
                      tr("Write it as postgresql://user@host/database, with %3B for ; and the like.",
                         "Écrivez-la sous la forme postgresql://utilisateur@serveur/base, avec %3B pour ; "
                         "etc."));
    };
    if (!isAddress(place) || !m_url.isValid()) {
        refuse(tr("its parts can't be told apart", "ses parties ne se distinguent pas"));
    }
    m_options = QUrlQuery(m_url).queryItems(QUrl::FullyDecoded);
    for (const auto& option : qAsConst(m_options)) {
        if (!isOption(option.first) || !isValue(option.second)) {
            refuse(
                tr("the option <b>%1</b> can't be handed on", "l'option <b>%1</b> ne peut pas être transmise")
                    .arg(option.first.toHtmlEscaped()));
        }
    }
    if (title().isEmpty()) {
        refuse(tr("it names no database", "elle ne nomme pas de base de données"));
    }
    if (database().contains(QLatin1Char('/'))) {
        refuse(tr("the name of its database holds a slash", "le nom de sa base contient une barre oblique"));
    }
}

QString ServerAddress::shown() const {
    QUrl safe = m_url;
    safe.setPassword({});
    QUrlQuery options(m_url);
    options.removeAllQueryItems(passwordOption);
    safe.setQuery(options.isEmpty() ? QString() : options.toString(QUrl::FullyEncoded));
    return safe.toString(QUrl::FullyEncoded);
}

QString ServerAddress::database() const {
    return m_url.path(QUrl::FullyDecoded).mid(1);
}

QString ServerAddress::title() const {
    return database().isEmpty()
               ? QUrlQuery(m_url).queryItemValue(QStringLiteral("service"), QUrl::FullyDecoded)
               : database();
}

void ServerAddress::aim(QSqlDatabase& connection) const {
    connection.setHostName(m_url.host(QUrl::FullyDecoded));
    connection.setPort(m_url.port());
    connection.setDatabaseName(database());
    connection.setUserName(m_url.userName(QUrl::FullyDecoded));
    connection.setPassword(m_url.password(QUrl::FullyDecoded));
    QStringList options{QStringLiteral("connect_timeout=") + patience,
                        // A line that went silent is a cut one within a minute.
                        QStringLiteral("keepalives_idle=20"), QStringLiteral("keepalives_interval=10"),
                        QStringLiteral("keepalives_count=3"),
                        QStringLiteral("tcp_user_timeout=30000"), // milliseconds
                        QStringLiteral("application_name='Vorn workbench'")};
    for (const auto& option : m_options) {
        options.append(option.first + QLatin1Char('=') + quoted(option.second)); // the later one counts
    }
    connection.setConnectOptions(options.join(QLatin1Char(';')));
}

} // namespace TechDB
