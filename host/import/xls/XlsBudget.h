#pragma once

#include "Workbook.h"

/// What reading one file may still cost. Each piece is taken before it is set aside; one too many is thrown
/// as XlsRefusal.
class XlsBudget {
public:
    explicit XlsBudget(const Workbook::Limits& limits) : m_limits(limits) {}

    /// For one more cell that isn't empty.
    void takeCell();

    /// For an existing row of `oldLength` cells to become one of `newLength`.
    void takeColumns(int oldLength, int newLength);
    /// For a sheet of `oldCount` rows to become one of `newCount`, the new ones empty.
    void takeRows(int oldCount, int newCount);

    /// The text, cut at the length that the limits allow; from a file in a form that cells can't hold.
    QString taken(const QString& text);
    void takeSheet();
    void takeMergedRange();

    /// How many texts were cut.
    int cutTexts() const { return m_cutTexts; }

private:
    void takeBytes(qint64 bytes);

    const Workbook::Limits m_limits;
    qint64 m_cells = 0;
    qint64 m_bytes = 0;
    int m_sheets = 0;
    int m_cutTexts = 0;
};
