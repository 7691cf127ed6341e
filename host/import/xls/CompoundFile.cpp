#include "CompoundFile.h"

#include "XlsRefusal.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace {

constexpr int headerSize = 512;
constexpr int entrySize = 128;
constexpr int smallSectorSize = 64;

// Places in the header
constexpr int byteOrderAt = 28;
constexpr int sectorShiftAt = 30;
constexpr int smallSectorShiftAt = 32;
constexpr int directoryAt = 48;
constexpr int leastBigStreamAt = 56;
constexpr int smallTableAt = 60;
constexpr int moreTableSectorsAt = 68;
constexpr int tableSectorsAt = 76;

// Places in an entry of the directory
constexpr int nameLengthAt = 64;
constexpr int typeAt = 66;
constexpr int leftAt = 68;
constexpr int rightAt = 72;
constexpr int childAt = 76;
constexpr int startAt = 116;
constexpr int sizeAt = 120;

constexpr quint8 streamType = 2;
constexpr quint8 rootType = 5;

/// Within bytes whose length was checked.
template <class Number>
Number number(const QByteArray& bytes, int at) {
    Q_ASSERT(at >= 0 && at + static_cast<int>(sizeof(Number)) <= bytes.size());
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

[[noreturn]] void refuse(XlsRefusal::Cause cause) {
    throw XlsRefusal(cause);
}

std::vector<quint32> numbers(const QByteArray& bytes) {
    std::vector<quint32> all(static_cast<std::size_t>(bytes.size()) / sizeof(quint32));
    qFromLittleEndian<quint32>(bytes.constData(), static_cast<qsizetype>(all.size()), all.data());
    return all;
}

QString nameOf(const QByteArray& entry) {
    const int bytes = number<quint16>(entry, nameLengthAt); // with the closing zero
    if (bytes < 2 || bytes > nameLengthAt || bytes % 2 != 0) {
        return {};
    }
    QString name(bytes / 2 - 1, Qt::Uninitialized);
    for (int i = 0; i < name.size(); ++i) {
        name[i] = QChar(number<quint16>(entry, 2 * i));
    }
    return name;
}

} // namespace

bool CompoundFile::hasSignature(const QByteArray& bytes) {
    return bytes.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

CompoundFile::CompoundFile(const QByteArray& bytes) {
    if (bytes.size() < headerSize) {
        refuse(XlsRefusal::Cause::Truncated);
    }
    readSectors(bytes);
    const QByteArray directory = m_sectors.wholeChain(number<quint32>(bytes, directoryAt));
    if (directory.size() < entrySize || number<quint8>(directory, typeAt) != rootType) {
        refuse(XlsRefusal::Cause::Damaged);
    }
    m_leastBigStream = number<quint32>(bytes, leastBigStreamAt);
    const auto smallTable = number<quint32>(bytes, smallTableAt);
    if (smallTable <= SectorChains::LastSector) {
        const QByteArray small = m_sectors.wholeChain(number<quint32>(directory, startAt));
        m_smallSectors = SectorChains(small, 0, smallSectorSize, numbers(m_sectors.wholeChain(smallTable)));
    }
    readFolder(directory);
}

QByteArray CompoundFile::stream(const QString& name) const {
    const auto found = m_streams.constFind(name.toLower());
    if (found == m_streams.constEnd() || found->size == 0) {
        return {};
    }
    if (found->size < 0) {
        refuse(XlsRefusal::Cause::Damaged);
    }
    const SectorChains& sectors = found->size < m_leastBigStream ? m_smallSectors : m_sectors;
    return sectors.bytes(found->start, found->size);
}

void CompoundFile::readSectors(const QByteArray& bytes) {
    const int shift = number<quint16>(bytes, sectorShiftAt);
    if (number<quint16>(bytes, byteOrderAt) != 0xFFFE || (shift != 9 && shift != 12) ||
        number<quint16>(bytes, smallSectorShiftAt) != 6) {
        refuse(XlsRefusal::Cause::Damaged);
    }
    const int sectorSize = 1 << shift;
    m_wideSizes = shift == 12; // else writers left the upper half of a size unset
    m_sectors = SectorChains(bytes, sectorSize, sectorSize, {});
    std::vector<quint32> next;
    for (const quint32 sector : tableSectors(bytes)) {
        const std::vector<quint32> some = numbers(m_sectors.sector(sector));
        next.insert(next.end(), some.begin(), some.end());
    }
    m_sectors = SectorChains(bytes, sectorSize, sectorSize, std::move(next));
}

/// Where the table of what follows each sector is itself kept: the first 109 places stand in the header, more
/// of them in sectors each of which ends with the number of the next.
std::vector<quint32> CompoundFile::tableSectors(const QByteArray& bytes) const {
    const qint64 numbersInSector = m_sectors.sectorSize() / static_cast<qint64>(sizeof(quint32));
    const qint64 needed = (m_sectors.sectorCount() + numbersInSector - 1) / numbersInSector;
    std::vector<quint32> found;
    // Places past those needed would describe sectors that the file doesn't have.
    const auto take = [&found, needed](quint32 sector) {
        if (sector != SectorChains::Free && static_cast<qint64>(found.size()) < needed) {
            found.push_back(sector);
        }
    };
    for (int at = tableSectorsAt; at < headerSize; at += static_cast<int>(sizeof(quint32))) {
        take(number<quint32>(bytes, at));
    }
    auto more = number<quint32>(bytes, moreTableSectorsAt);
    for (qint64 steps = 0; more <= SectorChains::LastSector && static_cast<qint64>(found.size()) < needed;
         ++steps) {
        if (steps == m_sectors.sectorCount()) {
            refuse(XlsRefusal::Cause::Loop);
        }
        const std::vector<quint32> places = numbers(m_sectors.sector(more));
        std::for_each(places.begin(), places.end() - 1, take);
        more = places.back();
    }
    return found;
}

/// The streams of the root folder stand in a tree of entries, sorted by a rule that not every writer keeps.
void CompoundFile::readFolder(const QByteArray& directory) {
    const int count = directory.size() / entrySize;
    std::vector<bool> visited(static_cast<std::size_t>(count));
    std::vector<quint32> toVisit{number<quint32>(directory, childAt)};
    while (!toVisit.empty()) {
        const quint32 index = toVisit.back();
        toVisit.pop_back();
        if (index == SectorChains::Free) {
            continue;
        }
        if (index >= visited.size()) {
            refuse(XlsRefusal::Cause::Damaged);
        }
        if (visited[index]) {
            refuse(XlsRefusal::Cause::Loop);
        }
        visited[index] = true;
        const QByteArray entry = directory.mid(static_cast<int>(index) * entrySize, entrySize);
        if (number<quint8>(entry, typeAt) == streamType) {
            m_streams.insert(nameOf(entry).toLower(), {number<quint32>(entry, startAt), sizeOf(entry)});
        }
        toVisit.push_back(number<quint32>(entry, leftAt));
        toVisit.push_back(number<quint32>(entry, rightAt));
    }
}

qint64 CompoundFile::sizeOf(const QByteArray& entry) const {
    return m_wideSizes ? number<qint64>(entry, sizeAt) : qint64{number<quint32>(entry, sizeAt)};
}
