#pragma once

#include "BiffRecord.h"

/// The records of a workbook's stream one after the other. CONTINUE records come as records of their own,
/// also when the cursor of the one before read them. The bytes outlive the stream.
class BiffStream {
public:
    /// Throws XlsRefusal if `position` lies outside of the bytes.
    BiffStream(const QByteArray& bytes, qint64 position);

    /// The next record; throws XlsRefusal if the bytes end before or within it.
    BiffRecord next();

    /// Of the next record.
    qint64 position() const { return m_position; }

private:
    const QByteArray& m_bytes;
    qint64 m_position;
};
