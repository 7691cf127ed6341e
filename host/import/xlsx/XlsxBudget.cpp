#include "XlsxBudget.h"

void XlsxBudget::takeCell() {
    if (++m_cells > m_limits.cells) {
        throw m_errors.tooManyCells(m_limits.cells);
    }
}

void XlsxBudget::takePlaces(qint64 count) {
    m_places += count;
    if (m_places > m_limits.places) {
        throw m_errors.tooManyGaps();
    }
}

QString XlsxBudget::cut(const QString& text) {
    if (text.size() <= m_limits.textLength) {
        return text;
    }
    ++m_cutTexts;
    return text.left(m_limits.textLength);
}
