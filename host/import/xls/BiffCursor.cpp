#include "BiffCursor.h"

#include "BiffRecord.h"
#include "XlsRefusal.h"

#include <QtEndian>

#include <algorithm>
#include <array>

/// A number is not split between records by the writers known, but may be.
template <class Number>
Number BiffCursor::number() {
    constexpr qint64 size = sizeof(Number);
    if (leftHere() >= size) {
        return qFromLittleEndian<Number>(take(size));
    }
    std::array<char, sizeof(Number)> parts{};
    for (char& part : parts) {
        if (leftHere() == 0) {
            enterContinue();
        }
        part = *take(1);
    }
    return qFromLittleEndian<Number>(parts.data());
}

quint8 BiffCursor::u8() {
    return number<quint8>();
}

quint16 BiffCursor::u16() {
    return number<quint16>();
}

quint32 BiffCursor::u32() {
    return number<quint32>();
}

double BiffCursor::f64() {
    return number<double>();
}

void BiffCursor::skip(qint64 count) {
    while (count > leftHere()) {
        count -= leftHere();
        enterContinue();
    }
    m_at += count;
}

bool BiffCursor::hasMore() const {
    qint64 at = m_at;
    qint64 end = m_end;
    while (at == end && findContinue(at, end)) {
    }
    return at < end;
}

void BiffCursor::enterContinue() {
    do {
        if (!findContinue(m_at, m_end)) {
            throw XlsRefusal(XlsRefusal::Cause::Damaged);
        }
    } while (m_at == m_end);
}

const char* BiffCursor::take(qint64 count) {
    Q_ASSERT(count <= leftHere());
    const char* const here = m_bytes->constData() + m_at;
    m_at += count;
    return here;
}

bool BiffCursor::findContinue(qint64& at, qint64& end) const {
    if (m_bytes->size() - end < BiffRecord::headerSize) {
        return false;
    }
    const char* const header = m_bytes->constData() + end;
    const qint64 size = qFromLittleEndian<quint16>(header + 2);
    const qint64 begin = end + BiffRecord::headerSize;
    if (qFromLittleEndian<quint16>(header) != BiffRecord::Continue || size > m_bytes->size() - begin) {
        return false;
    }
    at = begin;
    end = begin + size;
    return true;
}
