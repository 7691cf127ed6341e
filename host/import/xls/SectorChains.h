#pragma once

#include <QByteArray>

#include <vector>

/// Bytes cut into sectors of equal size, and for each sector the one that follows it in its chain. Faults of
/// the file are thrown as XlsRefusal.
class SectorChains {
public:
    /// Of sectors, and beyond the last possible what else stands in their place.
    enum Number : quint32 { LastSector = 0xFFFFFFFA, EndOfChain = 0xFFFFFFFE, Free = 0xFFFFFFFF };

    SectorChains() = default;

    /// The first sector starts at `start`; the last may be incomplete.
    SectorChains(const QByteArray& bytes, qint64 start, int sectorSize, std::vector<quint32> next);

    /// Joined from the sector `first` to the end of its chain.
    QByteArray wholeChain(quint32 first) const;

    /// As many bytes of a chain; what it holds behind them counts for nothing.
    QByteArray bytes(quint32 first, qint64 size) const;

    /// One sector, full or refused.
    QByteArray sector(quint32 number) const;

    int sectorSize() const { return m_sectorSize; }
    qint64 sectorCount() const;

private:
    QByteArray joined(quint32 first, qint64 size) const;
    QByteArray part(quint32 number, qint64 atMost) const;

    QByteArray m_bytes;
    qint64 m_start = 0;
    int m_sectorSize = 1;
    std::vector<quint32> m_next;
};
