#include "ImportSession.h"

#include "VKError.h"

#include <QDir>
#include <QUuid>

namespace {

const QString& extension() {
    static const QString text = QStringLiteral(".lock");
    return text;
}

} // namespace

ImportSession::ImportSession(const QString& folder)
    : m_folder(folder), m_id(QUuid::createUuid().toString(QUuid::WithoutBraces)), m_lock(pathOf(m_id)) {
    m_lock.setStaleLockTime(0); // however long a window is open
    if (!QDir().mkpath(folder) || !m_lock.tryLock(0)) {
        throw VKError(
            tr("The folder <b>%1</b> can't be written.", "Le dossier <b>%1</b> ne peut pas être écrit.")
                .arg(QDir::toNativeSeparators(folder).toHtmlEscaped()),
            {},
            tr("Check its permissions and the space on the disk.",
               "Vérifiez ses permissions et la place sur le disque."));
    }
    const QStringList files = QDir(folder).entryList({QLatin1Char('*') + extension()}, QDir::Files);
    for (const QString& file : files) {
        isAlive(file.chopped(extension().size())); // takes the file of a dead one away
    }
}

bool ImportSession::isAlive(const QString& id) const {
    if (id == m_id) {
        return true;
    }
    if (!QFile::exists(pathOf(id))) {
        return false;
    }
    QLockFile lock(pathOf(id));
    lock.setStaleLockTime(0);
    return !lock.tryLock(0);
}

QString ImportSession::pathOf(const QString& id) const {
    return m_folder + QLatin1Char('/') + id + extension();
}
