#include "SectorChains.h"

#include "XlsRefusal.h"

#include <algorithm>
#include <limits>
#include <utility>

SectorChains::SectorChains(const QByteArray& bytes, qint64 start, int sectorSize, std::vector<quint32> next)
    : m_bytes(bytes), m_start(start), m_sectorSize(sectorSize), m_next(std::move(next)) {}

qint64 SectorChains::sectorCount() const {
    const qint64 size = std::max<qint64>(m_bytes.size() - m_start, 0);
    return (size + m_sectorSize - 1) / m_sectorSize;
}

QByteArray SectorChains::sector(quint32 number) const {
    QByteArray found = part(number, m_sectorSize);
    if (found.size() < m_sectorSize) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
    return found;
}

QByteArray SectorChains::wholeChain(quint32 first) const {
    return joined(first, std::numeric_limits<qint64>::max());
}

QByteArray SectorChains::bytes(quint32 first, qint64 size) const {
    QByteArray found = joined(first, size);
    if (found.size() < size) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
    return found;
}

/// Less than `size` if the chain ends before.
QByteArray SectorChains::joined(quint32 first, qint64 size) const {
    QByteArray all;
    std::vector<bool> visited(static_cast<std::size_t>(sectorCount()));
    quint32 number = first;
    while (all.size() < size && number != EndOfChain) {
        all += part(number, size - all.size());
        if (visited[number]) {
            throw XlsRefusal(XlsRefusal::Cause::Loop);
        }
        visited[number] = true;
        if (number >= m_next.size()) {
            throw XlsRefusal(XlsRefusal::Cause::Damaged);
        }
        number = m_next[number];
    }
    return all;
}

QByteArray SectorChains::part(quint32 number, qint64 atMost) const {
    if (number > LastSector) {
        throw XlsRefusal(XlsRefusal::Cause::Damaged);
    }
    if (number >= sectorCount()) {
        throw XlsRefusal(XlsRefusal::Cause::Truncated);
    }
    const qint64 position =
        m_start + static_cast<qint64>(number) * m_sectorSize; // lies within the bytes, so fits an int
    return m_bytes.mid(static_cast<int>(position), static_cast<int>(std::min<qint64>(m_sectorSize, atMost)));
}
