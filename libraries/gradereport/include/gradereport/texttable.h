#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/gradetally.h"

#include <cstddef>
#include <iosfwd>
#include <string>

namespace gradereport {

/// The table for a terminal: a heading, one line a file and a closing count. Each line is written as its file
/// is added, so columns have fixed widths; a longer file name is shortened in its middle. The text is the
/// same with and without colour. The reason stands at the end of the line, shortened to `width` columns or
/// left out where fewer than 24 columns remain; what went wrong with a failed file is never shortened.
/// Control characters of file names are shown as pictures and have no effect on the terminal.
class TextTable {
public:
    /// Writes the heading. A `width` of 0 means lines of any length, for a file or a pipe. `colour` sets the
    /// grades in ANSI colours; only for a stream that ends in a terminal.
    TextTable(std::ostream& out, bool colour, std::size_t width);

    void add(const GradeRecord& record);
    void addFailure(const FailureRecord& failure);

    /// The closing line: "24 graded: 10 good, 6 double, 8 flat; 1 failed". Counts of zero are left out.
    void finish();

private:
    void writeLine(const std::string& columns, const std::string& rest);
    [[nodiscard]] std::string gradeColumn(GradeKind kind, const std::string& text) const;
    [[nodiscard]] std::string fittedReason(const std::string& reason) const;

    std::ostream& m_out;
    GradeTally m_tally;
    bool m_colour;
    std::size_t m_width;
};

} // namespace gradereport
