#include "XlsBudget.h"

#include "XlsRefusal.h"

namespace {

/// What a text costs beside its characters: its head and the pointer to it.
constexpr qint64 bytesOfTextHead = sizeof(QString) + 32;

} // namespace

void XlsBudget::takeCell() {
    if (++m_cells > m_limits.cells) {
        throw XlsRefusal(XlsRefusal::Cause::TooManyCells);
    }
}

void XlsBudget::takeColumns(int oldLength, int newLength) {
    if (newLength > m_limits.columns) {
        throw XlsRefusal(XlsRefusal::Cause::TooManyColumns);
    }
    takeBytes(qint64{newLength - oldLength} * static_cast<qint64>(sizeof(QVariant)));
}

void XlsBudget::takeRows(int oldCount, int newCount) {
    if (newCount > m_limits.rows) {
        throw XlsRefusal(XlsRefusal::Cause::TooManyRows);
    }
    takeBytes(qint64{newCount - oldCount} * static_cast<qint64>(sizeof(std::vector<QVariant>)));
}

QString XlsBudget::taken(const QString& text) {
    m_cutTexts += text.size() > m_limits.textLength ? 1 : 0;
    QString kept = text.left(m_limits.textLength);
    takeBytes(bytesOfTextHead + qint64{kept.size()} * static_cast<qint64>(sizeof(QChar)));
    return kept;
}

void XlsBudget::takeSheet() {
    if (++m_sheets > m_limits.sheets) {
        throw XlsRefusal(XlsRefusal::Cause::TooManySheets);
    }
}

void XlsBudget::takeMergedRange() {
    takeBytes(sizeof(Workbook::MergedRange));
}

void XlsBudget::takeBytes(qint64 bytes) {
    m_bytes += bytes;
    if (m_bytes > m_limits.unpackedBytes) {
        throw XlsRefusal(XlsRefusal::Cause::TooLargeUnpacked);
    }
}
