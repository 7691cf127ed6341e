#pragma once

#include "gradereport/graderecord.h"

#include <iosfwd>
#include <string>

namespace gradereport {

/// Writes a comma-separated table: a header line, then one line a file, as RFC 4180 has it (CRLF, quotes
/// where needed), UTF-8 without byte-order mark. A number that is not finite and a value that a failed file
/// does not have are empty cells. `peaks` lists "x:y:category" for each peak, separated by semicolons;
/// `warnings` is their number.
///
/// Spreadsheet programs run a cell that begins with = + - @ tab, line feed or carriage return as a formula.
/// The text cells `file`, `name`, `reason` and `error` therefore get one apostrophe in front when they begin
/// so, or with an apostrophe: taking one leading apostrophe away gives every text back. Numbers are never
/// changed.
///
/// Holds nothing of a record after `add`. The stream outlives the table; its state tells whether writing
/// worked.
class CsvTable {
public:
    /// Writes the header line.
    CsvTable(std::ostream& out, std::string version);

    void add(const GradeRecord& record);
    void addFailure(const FailureRecord& failure);

private:
    std::ostream& m_out;
    std::string m_version;
};

} // namespace gradereport
