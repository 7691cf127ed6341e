#include "gradereport/texttable.h"

#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

#include <limits>
#include <ostream>
#include <string_view>

namespace gradereport {

namespace {

constexpr std::size_t nameWidth = 28;
constexpr std::size_t gradeWidth = 7;
constexpr std::size_t peaksWidth = 5;
constexpr std::size_t timeWidth = 9;
constexpr std::size_t heightWidth = 10;
constexpr std::size_t startWidth = 9;
constexpr std::size_t gap = 2;
constexpr std::size_t fixedWidth =
    nameWidth + gradeWidth + peaksWidth + timeWidth + heightWidth + startWidth + 6 * gap;
constexpr std::size_t leastReasonWidth = 24;

constexpr std::string_view dash = "\u2013";

std::string spaces(std::size_t wanted, std::size_t used) {
    return std::string(wanted > used ? wanted - used : 0, ' ');
}

std::string leftAligned(const std::string& text, std::size_t width) {
    return text + spaces(width + gap, displayWidth(text));
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return spaces(width, displayWidth(text)) + text + std::string(gap, ' ');
}

std::string nameColumn(std::string_view name) {
    return leftAligned(shortenedInMiddle(visibleText(name), nameWidth), nameWidth);
}

std::string_view colourOf(GradeKind kind) {
    switch (kind) {
    case GradeKind::good:
        return "\x1b[32m";
    case GradeKind::twin:
        return "\x1b[33m";
    case GradeKind::flat:
        return "\x1b[31m";
    case GradeKind::failed:
        return "\x1b[1;31m";
    case GradeKind::none:
    case GradeKind::other:
        break;
    }
    return {};
}

std::string gradeText(const GradeRecord& record) {
    const GradeKind kind = kindOf(record);
    if (kind == GradeKind::none || kind == GradeKind::other)
        return std::string(dash) + ' ' + std::to_string(record.quality);
    return std::string(kindWord(kind));
}

std::string numberColumns(const GradeRecord& record) {
    const ReportedPeak* top = highestPeak(record);
    const auto topNumber = [top](double ReportedPeak::*member) {
        return top == nullptr ? std::string(dash) : fixedNumber(top->*member, 1);
    };
    return rightAligned(std::to_string(record.peaks.size()), peaksWidth) +
           rightAligned(topNumber(&ReportedPeak::x), timeWidth) +
           rightAligned(topNumber(&ReportedPeak::y), heightWidth) +
           rightAligned(fixedNumber(record.start, 1), startWidth);
}

std::string countedAs(GradeKind kind, std::size_t count) {
    const std::string number = std::to_string(count);
    return kind == GradeKind::none ? number + " without a peak" : number + ' ' + std::string(kindWord(kind));
}

} // namespace

TextTable::TextTable(std::ostream& out, bool colour, std::size_t width)
    : m_out(out), m_colour(colour), m_width(width == 0 ? std::numeric_limits<std::size_t>::max() : width) {
    writeLine(leftAligned("file", nameWidth) + leftAligned("grade", gradeWidth) +
                  rightAligned("peaks", peaksWidth) + rightAligned("top, s", timeWidth) +
                  rightAligned("height", heightWidth) + rightAligned("start, s", startWidth),
              fittedReason("reason"));
}

void TextTable::add(const GradeRecord& record) {
    const GradeKind kind = kindOf(record);
    m_tally.add(kind);
    writeLine(nameColumn(record.name) + gradeColumn(kind, gradeText(record)) + numberColumns(record),
              fittedReason(visibleText(record.reason)));
}

void TextTable::addFailure(const FailureRecord& failure) {
    m_tally.add(GradeKind::failed);
    const std::string word(kindWord(GradeKind::failed));
    writeLine(nameColumn(fileNameOf(failure.file)) + gradeColumn(GradeKind::failed, word),
              visibleText(failure.error));
}

void TextTable::finish() {
    m_out << m_tally.graded() << " graded";
    std::string_view separator = ": ";
    for (const GradeKind kind :
         {GradeKind::good, GradeKind::twin, GradeKind::flat, GradeKind::none, GradeKind::other}) {
        if (m_tally.count(kind) == 0)
            continue;
        m_out << separator << countedAs(kind, m_tally.count(kind));
        separator = ", ";
    }
    if (const std::size_t failed = m_tally.count(GradeKind::failed); failed > 0)
        m_out << "; " << failed << " failed";
    m_out << '\n';
}

void TextTable::writeLine(const std::string& columns, const std::string& rest) {
    std::string line = columns + rest;
    line.erase(line.find_last_not_of(' ') + 1);
    m_out << line << '\n';
}

std::string TextTable::gradeColumn(GradeKind kind, const std::string& text) const {
    const std::string_view colour = colourOf(kind);
    std::string column = leftAligned(text, gradeWidth);
    if (!m_colour || colour.empty())
        return column;
    return std::string(colour) + text + "\x1b[0m" + column.substr(text.size());
}

std::string TextTable::fittedReason(const std::string& reason) const {
    if (m_width < fixedWidth + leastReasonWidth)
        return {};
    return shortenedAtEnd(reason, m_width - fixedWidth);
}

} // namespace gradereport
