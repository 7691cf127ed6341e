#pragma once

#include <QByteArray>

/// Reads the content of one record of a workbook, and where that was too long for a record, on into the
/// CONTINUE records behind it. Numbers have their lowest byte first. Reading past the end is thrown as
/// XlsRefusal. The bytes outlive the cursor.
class BiffCursor {
public:
    /// The content of `size` bytes at `begin`, which must lie within the bytes.
    BiffCursor(const QByteArray& bytes, qint64 begin, qint64 size)
        : m_bytes(&bytes), m_at(begin), m_end(begin + size) {}

    quint8 u8();
    quint16 u16();
    quint32 u32();
    double f64();
    void skip(qint64 count);

    /// Whether anything is left, here or in a CONTINUE record that follows.
    bool hasMore() const;

    /// What is left before the next CONTINUE record.
    qint64 leftHere() const { return m_end - m_at; }

    /// Moves to the next CONTINUE record that isn't empty; only when nothing is left here.
    void enterContinue();

    /// The next bytes; no more than are left here.
    const char* take(qint64 count);

private:
    template <class Number>
    Number number();
    /// Position and end become those of the content of the record behind this one, if it continues this one.
    bool findContinue(qint64& at, qint64& end) const;

    const QByteArray* m_bytes;
    qint64 m_at;
    qint64 m_end;
};
