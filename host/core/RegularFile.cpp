#include "RegularFile.h"

#include <QFileInfo>

RegularFile::RegularFile(const QString& path) : m_file(path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        m_refusal = tr("it does not exist; check where it was moved",
                       "il n'existe pas ; vérifiez s'il a été déplacé");
    } else if (!info.isFile()) {
        m_refusal = tr("it is no regular file; choose a file",
                       "ce n'est pas un fichier ordinaire ; choisissez un fichier");
    } else if (!m_file.open(QIODevice::ReadOnly)) {
        m_refusal = tr("it can't be opened (%1); check your right to read it",
                       "il ne peut pas être ouvert (%1) ; vérifiez votre droit de le lire")
                        .arg(m_file.errorString().toHtmlEscaped());
    }
}

QByteArray RegularFile::read(qint64 size) {
    if (!m_file.isOpen()) {
        return {};
    }
    QByteArray bytes = m_file.read(size);
    if (m_file.error() != QFileDevice::NoError) {
        m_refusal = tr("it can't be read (%1); check the drive and copy the file again",
                       "il ne peut pas être lu (%1) ; vérifiez le disque et copiez-le à nouveau")
                        .arg(m_file.errorString().toHtmlEscaped());
        return {};
    }
    return bytes;
}
