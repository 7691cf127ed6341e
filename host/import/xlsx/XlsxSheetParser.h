#pragma once

#include "CellReference.h"
#include "ExcelDate.h"
#include "Workbook.h"
#include "XlsxSharedStrings.h"
#include "XlsxStyles.h"

#include <QString>
#include <QVariant>

class QXmlStreamAttributes;
class XlsxBudget;
class XlsxXml;

/// Reads the cells of one sheet.
class XlsxSheetParser {
public:
    /// What the sheets of a workbook have in common.
    struct Common {
        XlsxSharedStrings strings;
        XlsxStyles styles;
        ExcelDate::Origin origin = ExcelDate::Origin::Year1900;
    };

    /// All outlive this object.
    XlsxSheetParser(XlsxXml& xml, const Common& common, XlsxBudget& budget, Workbook::Sheet& sheet);

    /// Fills rows and merged ranges of the sheet. Throws VKError for what is no sheet and over the limits.
    void parse();

    /// Formulas whose result the file doesn't tell: their cells are empty.
    int formulasWithoutResult() const { return m_formulasWithoutResult; }
    CellReference firstOfThem() const { return m_firstWithoutResult; }

private:
    struct Cell {
        QStringRef type;
        QStringRef style;
        QString value;
        bool hasFormula = false;
        bool hasValue = false;
    };

    void takeRows();
    void takeCells();
    void takeCell(const QXmlStreamAttributes& attributes);
    void takeMergedRanges();
    QVariant valueOf(const Cell& cell) const;
    QVariant sharedText(const QString& index) const;
    QVariant number(const Cell& cell) const;
    QVariant isoDate(const Cell& cell) const;
    void store(const QVariant& value);
    void noteFormulaWithoutResult();

    XlsxXml& m_xml;
    const Common& m_common;
    XlsxBudget& m_budget;
    Workbook::Sheet& m_sheet;
    int m_row = -1;
    int m_column = -1;
    int m_formulasWithoutResult = 0;
    CellReference m_firstWithoutResult;
};
