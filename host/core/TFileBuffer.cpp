#include "TFileBuffer.h"

#include "VKError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
constexpr qint64 chunk = qint64{1024} * 1024;
}

TFileBuffer::TFileBuffer(const QString& path, bool readNow) : m_fileName(path) {
    if (readNow) {
        read();
    }
}

void TFileBuffer::read() {
    const auto refuse = [this](const QString& cause) {
        throw VKError(tr("File <b>%1</b> cannot be read: %2", "Le fichier <b>%1</b> ne peut pas être lu : %2")
                          .arg(QDir::toNativeSeparators(m_fileName), cause));
    };
    const QFileInfo info(m_fileName);
    if (!info.exists()) {
        refuse(
            tr("it does not exist; check where it was moved", "il n'existe pas ; vérifiez son emplacement"));
    }
    if (!info.isFile()) {
        refuse(tr("it is no regular file; choose a file",
                  "ce n'est pas un fichier ordinaire ; choisissez un fichier"));
    }
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.errorString());
    }
    QByteArray content;
    while (content.size() <= maxSize && !file.atEnd()) { // not by size(), which a growing file outruns
        const QByteArray more = file.read(chunk);
        if (more.isEmpty()) {
            break;
        }
        content += more;
    }
    if (file.error() != QFileDevice::NoError) {
        refuse(file.errorString());
    }
    if (content.size() > maxSize) {
        refuse(tr("it is larger than %1 MiB; split it", "il dépasse %1 Mio ; divisez-le")
                   .arg(maxSize / 1024 / 1024));
    }
    m_data = content;
}
