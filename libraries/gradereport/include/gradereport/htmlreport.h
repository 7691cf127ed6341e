#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/gradetally.h"
#include "gradereport/language.h"

#include <cstddef>
#include <iosfwd>
#include <string>

namespace gradereport {

/// One self-contained HTML page about a run: counts by grade, the settings, a table of all files and a
/// drawing for each graded curve. It loads nothing and sends nothing; its content policy forbids both.
/// Everything from outside is escaped. Without scripts the page shows everything and only sorting and
/// filtering are missing. The page depends on what was added and on nothing else, so equal runs give equal
/// bytes.
///
/// Memory: the page's own text, a few kilobytes a file; curves are not kept.
class HtmlReport {
public:
    /// The language is that of the page; records bring their sentences as they are.
    HtmlReport(const GradeSettings& settings, std::string version, Language language = Language::english);

    void add(const GradeRecord& record);
    void addFailure(const FailureRecord& failure);

    /// The stream's state tells whether writing worked.
    void write(std::ostream& out) const;

private:
    void writeHead(std::ostream& out) const;
    void writeSummary(std::ostream& out) const;
    void writeTable(std::ostream& out) const;
    void writeCards(std::ostream& out) const;

    [[nodiscard]] std::string say(const char* english, const char* french) const {
        return said(m_language, english, french);
    }
    [[nodiscard]] std::string legend() const;

    GradeSettings m_settings;
    std::string m_version;
    Language m_language;
    GradeTally m_tally;
    std::string m_rows;
    std::string m_cards;
};

} // namespace gradereport
