#pragma once

#include "BiffRecord.h"
#include "Workbook.h"

#include <optional>

class XlsBudget;
class XlsGlobals;

/// Reads the cells of one worksheet into a sheet without any. Faults of the file are thrown as XlsRefusal.
/// Globals, budget and sheet outlive the parser.
class XlsSheetParser {
public:
    XlsSheetParser(const XlsGlobals& globals, XlsBudget& budget, Workbook::Sheet& sheet)
        : m_globals(globals), m_budget(budget), m_sheet(sheet) {}

    /// Reads what starts at `position` and returns where it ends. Charts within the sheet are passed by.
    qint64 parse(const QByteArray& stream, qint64 position);

    /// Formulas whose stored text is not in the file; their cells are empty.
    int missingResults() const { return m_missingResults; }

private:
    struct Place {
        int row = 0;
        int column = 0;
    };

    void take(BiffRecord& record);
    void takeNumber(BiffCursor& content);
    void takeRk(BiffCursor& content);
    void takeManyRk(BiffCursor& content);
    void takeFormula(BiffCursor& content);
    void takeSpecialResult(const Place& at, quint64 result);
    void takeFormulaText(BiffCursor& content);
    void forgetAwaited();
    void takeTruthOrError(BiffCursor& content);
    void takeSharedText(BiffCursor& content);
    void takeOwnText(BiffCursor& content);
    void takeMerged(BiffCursor& content);

    static Place place(BiffCursor& content);
    void store(const Place& at, const QVariant& value);
    void storeText(const Place& at, const QString& text);

    const XlsGlobals& m_globals;
    XlsBudget& m_budget;
    Workbook::Sheet& m_sheet;
    std::optional<Place> m_awaitsText; ///< the formula whose text comes in a record of its own
    int m_missingResults = 0;
};
