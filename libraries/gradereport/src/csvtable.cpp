#include "gradereport/csvtable.h"

#include "gradereport/gradekind.h"
#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

#include <cmath>
#include <ostream>
#include <string_view>
#include <utility>

namespace gradereport {

namespace {

constexpr std::string_view header =
    "file,name,sha256,points,graded_points,start,mean,quality,grade,peak_count,top_x,top_y,peaks,reason,"
    "warnings,sensitivity,coelution,height,version,error\r\n";

std::string numberCell(double value) {
    return std::isfinite(value) ? shortestNumber(value) : std::string();
}

std::string peaksCell(const std::vector<ReportedPeak>& peaks) {
    std::string list;
    for (const ReportedPeak& peak : peaks) {
        if (!list.empty())
            list += ';';
        list += numberCell(peak.x) + ':' + numberCell(peak.y) + ':' + std::to_string(peak.category);
    }
    return list;
}

std::string withoutFormula(std::string text) {
    constexpr std::string_view starters = "=+-@\t\r\n'";
    if (!text.empty() && starters.find(text.front()) != std::string_view::npos)
        text.insert(text.begin(), '\'');
    return text;
}

/// One line of the table, cell by cell.
class Line {
public:
    Line& plain(std::string_view cell) {
        if (!m_first)
            m_text += ',';
        m_first = false;
        appendQuoted(cell);
        return *this;
    }
    Line& text(std::string_view cell) { return plain(withoutFormula(validUtf8(cell))); }
    Line& number(double value) { return plain(numberCell(value)); }
    template <typename Integer>
    Line& integer(Integer value) {
        return plain(std::to_string(value));
    }
    Line& empty(int cells) {
        for (int i = 0; i < cells; ++i)
            plain({});
        return *this;
    }

    void write(std::ostream& out) { out << m_text << "\r\n"; }

private:
    void appendQuoted(std::string_view cell) {
        if (cell.find_first_of(",\"\r\n") == std::string_view::npos) {
            m_text += cell;
            return;
        }
        m_text += '"';
        for (const char letter : cell) {
            if (letter == '"')
                m_text += '"';
            m_text += letter;
        }
        m_text += '"';
    }

    std::string m_text;
    bool m_first = true;
};

} // namespace

CsvTable::CsvTable(std::ostream& out, std::string version) : m_out(out), m_version(std::move(version)) {
    m_out << header;
}

void CsvTable::add(const GradeRecord& record) {
    Line line;
    line.text(record.file).text(record.name).plain(record.sha256);
    line.integer(record.points).integer(record.gradedPoints).number(record.start).integer(record.mean);
    line.integer(record.quality).plain(record.grade).integer(record.peaks.size());
    if (const ReportedPeak* top = highestPeak(record)) {
        line.number(top->x).number(top->y);
    } else {
        line.empty(2);
    }
    line.plain(peaksCell(record.peaks)).text(record.reason).integer(record.warnings.size());
    line.number(record.settings.sensitivity).number(record.settings.coelution).number(record.settings.height);
    line.plain(m_version).empty(1).write(m_out);
}

void CsvTable::addFailure(const FailureRecord& failure) {
    constexpr int cellsBetweenNameAndVersion = 16;
    Line line;
    line.text(failure.file).text(fileNameOf(failure.file)).empty(cellsBetweenNameAndVersion);
    line.plain(m_version).text(failure.error).write(m_out);
}

} // namespace gradereport
