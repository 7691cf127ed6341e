#include "TFileBuffer.h"

#include "RegularFile.h"
#include "VKError.h"

#include <QDir>

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
                          .arg(QDir::toNativeSeparators(m_fileName).toHtmlEscaped(), cause));
    };
    RegularFile file(m_fileName);
    QByteArray content;
    QByteArray more;
    do { // not by the size, which a growing file outruns
        more = file.read(chunk);
        content += more;
    } while (!more.isEmpty() && content.size() <= maxSize);
    if (!file.refusal().isEmpty()) {
        refuse(file.refusal());
    }
    if (content.size() > maxSize) {
        refuse(tr("it is larger than %1 MiB; split it", "il dépasse %1 Mio ; divisez-le")
                   .arg(maxSize / 1024 / 1024));
    }
    m_data = content;
}
