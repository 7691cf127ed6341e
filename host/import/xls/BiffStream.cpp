#include "BiffStream.h"

#include "XlsRefusal.h"

BiffStream::BiffStream(const QByteArray& bytes, qint64 position) : m_bytes(bytes), m_position(position) {
    if (position < 0 || position > bytes.size()) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
}

BiffRecord BiffStream::next() {
    constexpr qint64 headerSize = BiffRecord::headerSize;
    if (m_bytes.size() - m_position < headerSize) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
    BiffCursor header(m_bytes, m_position, headerSize);
    const quint16 kind = header.u16();
    const qint64 size = header.u16();
    const qint64 begin = m_position + headerSize;
    if (size > m_bytes.size() - begin) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
    m_position = begin + size;
    return {kind, BiffCursor(m_bytes, begin, size)};
}
