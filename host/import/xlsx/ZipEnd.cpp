#include "ZipEnd.h"

#include <QtEndian>

#include <algorithm>

namespace ZipEnd {

namespace {

constexpr int longestEnd = 65'535 + 22 + 20; // the comment, the record, the place of its large form
constexpr int recordSize = 22;
constexpr int listSizeAt = 12;
constexpr int locatorSize = 20;
constexpr int largePlaceAt = 8;
constexpr int largeRecordSize = 56;
constexpr int largeListSizeAt = 40;

template <class Number>
quint64 numberAt(const QByteArray& archive, qint64 place) {
    return qFromLittleEndian<Number>(archive.constData() + place);
}

/// As the record at `place` says; archives with many or large files have it in a large form elsewhere.
quint64 listSize(const QByteArray& archive, int place) {
    const int locator = place - locatorSize;
    if (locator < 0 || archive.mid(locator, 4) != "PK\x06\x07") {
        return numberAt<quint32>(archive, place + listSizeAt);
    }
    const quint64 large = numberAt<quint64>(archive, locator + largePlaceAt);
    const qint64 last = archive.size() - largeRecordSize;
    const bool isInside = last >= 0 && large <= static_cast<quint64>(last);
    return isInside ? numberAt<quint64>(archive, static_cast<qint64>(large) + largeListSizeAt) : 0;
}

} // namespace

qint64 bytesOfLists(const QByteArray& archive) {
    const auto most = static_cast<quint64>(archive.size());
    qint64 sum = 0;
    int place = archive.indexOf("PK\x05\x06", std::max(0, archive.size() - longestEnd));
    while (place >= 0 && place <= archive.size() - recordSize) {
        sum += static_cast<qint64>(std::min(most, listSize(archive, place)));
        place = archive.indexOf("PK\x05\x06", place + 1);
    }
    return sum;
}

} // namespace ZipEnd
