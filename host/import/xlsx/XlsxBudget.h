#pragma once

#include "Workbook.h"
#include "XlsxErrors.h"

/// What one file may still take of its limits.
class XlsxBudget {
public:
    /// Both outlive this object.
    XlsxBudget(const Workbook::Limits& limits, const XlsxErrors& errors)
        : m_limits(limits), m_errors(errors) {}

    const Workbook::Limits& limits() const { return m_limits; }

    /// One cell that is not empty. Throws VKError when there are too many.
    void takeCell();
    /// Places that the table has to have for a cell to stand where it does. Throws as `takeCell`.
    void takePlaces(qint64 count);
    /// The text, shortened to the limit.
    QString cut(const QString& text);

    /// How many texts were shortened.
    int cutTexts() const { return m_cutTexts; }

private:
    const Workbook::Limits& m_limits;
    const XlsxErrors& m_errors;
    qint64 m_cells = 0;
    qint64 m_places = 0;
    int m_cutTexts = 0;
};
