#include "ZipPart.h"

#include <QCoreApplication>

#include <zip.h>

void ZipPart::Closer::operator()(zip_file* file) const {
    zip_fclose(file);
}

ZipPart::ZipPart(zip_file* file, const QString& name, qint64 size)
    : m_file(file), m_name(name), m_left(size) {
    open(QIODevice::ReadOnly);
}

ZipPart::~ZipPart() = default;

qint64 ZipPart::fail(const QString& cause) {
    m_failure = cause;
    return -1;
}

qint64 ZipPart::readData(char* data, qint64 most) {
    if (!m_failure.isEmpty()) {
        return -1;
    }
    const qint64 count = zip_fread(m_file.get(), data, static_cast<zip_uint64_t>(most));
    if (count < 0) {
        return fail(QString::fromUtf8(zip_file_strerror(m_file.get())));
    }
    m_left -= count;
    m_piece += count;
    if (m_left < 0) {
        return fail(QCoreApplication::translate("ZipPart", "it is longer than it says",
                                                "elle est plus longue qu'elle ne le dit"));
    }
    if (m_piece > longestPiece) {
        return fail(QCoreApplication::translate("ZipPart", "a text or tag is too long",
                                                "un texte ou une balise est trop long"));
    }
    return count == 0 ? -1 : count; // the end of a sequential device
}
