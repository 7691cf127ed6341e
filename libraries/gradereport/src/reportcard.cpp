#include "reportcard.h"

#include "curvechart.h"
#include "gradereport/gradekind.h"
#include "gradereport/shortestnumber.h"
#include "gradesymbol.h"
#include "htmltext.h"

#include <algorithm>
#include <string_view>

namespace gradereport {

namespace {

constexpr std::size_t rowNameWidth = 48;
constexpr std::size_t cardNameWidth = 96;
constexpr std::size_t pathWidth = 120;
constexpr std::size_t digestWidth = 12;
constexpr std::size_t mostWarnings = 20;
constexpr std::string_view dash = "\u2013";

std::string badge(GradeKind kind, int quality, Language language) {
    std::string text = "<span class=\"badge\">" + kindIcon(kind) + std::string(kindWord(kind, language));
    if (kind == GradeKind::other)
        text += " (" + std::to_string(quality) + ')';
    return text + "</span>";
}

std::string numberCell(const std::string& text) {
    return "<td class=\"n\">" + text + "</td>";
}

std::string folderOf(const std::string& path, const std::string& name) {
    const bool endsInName =
        path.size() > name.size() && path.compare(path.size() - name.size(), name.size(), name) == 0;
    return endsInName ? path.substr(0, path.size() - name.size()) : std::string();
}

std::string fileCell(const std::string& path, const std::string& name, const std::string& link) {
    const std::string folder = folderOf(path, name);
    std::string cell = "<th scope=\"row\">";
    const std::string shown = shortenedSpan(name, rowNameWidth);
    cell += link.empty() ? shown : "<a href=\"#" + link + "\">" + shown + "</a>";
    if (!folder.empty())
        cell += " <small>" + shortenedSpan(folder, rowNameWidth) + "</small>";
    return cell + "</th>";
}

std::string rowStart(GradeKind kind, const std::string& number) {
    return "<tr data-i=\"" + number + "\" data-k=\"" + std::string(kindClass(kind)) + "\">";
}

std::string digestCell(const std::string& digest) {
    if (digest.size() <= digestWidth)
        return "<td class=\"d\">" + escaped(digest) + "</td>";
    return R"(<td class="d" title=")" + escaped(digest) + "\">" + escaped(digest.substr(0, digestWidth)) +
           "\u2026</td>";
}

std::string figure(const std::string& name, const std::string& value) {
    return "<div><dt>" + name + "</dt><dd>" + value + "</dd></div>";
}

std::string figures(const GradeRecord& record, Language language) {
    const GradeSettings& settings = record.settings;
    return "<dl>" + figure(said(language, "Peaks", "Pics"), std::to_string(record.peaks.size())) +
           figure(said(language, "Start", "Départ"), trimmedNumber(record.start, 1) + " s") +
           figure(said(language, "Mean", "Moyenne"), std::to_string(record.mean)) +
           figure(said(language, "Threshold", "Seuil"), trimmedNumber(settings.height * record.mean, 1)) +
           figure(said(language, "Points graded", "Points évalués"), std::to_string(record.gradedPoints) +
                                                                         said(language, " of ", " sur ") +
                                                                         std::to_string(record.points)) +
           "</dl>\n";
}

std::string warningList(const std::vector<std::string>& warnings, Language language) {
    if (warnings.empty())
        return {};
    std::string list = "<p class=\"label\">" +
                       counted(warnings.size(), said(language, "warning", "avertissement"),
                               said(language, "warnings", "avertissements")) +
                       "</p><ul class=\"warnings\">";
    for (std::size_t i = 0; i < std::min(warnings.size(), mostWarnings); ++i)
        list += "<li>" + escaped(warnings[i]) + "</li>";
    if (warnings.size() > mostWarnings) {
        list += "<li>" + said(language, "and ", "et ") +
                counted(warnings.size() - mostWarnings, said(language, "more warning", "autre avertissement"),
                        said(language, "more warnings", "autres avertissements")) +
                "</li>";
    }
    return list + "</ul>\n";
}

} // namespace

std::string tableRow(const GradeRecord& record, std::size_t number, Language language) {
    const GradeKind kind = kindOf(record);
    const ReportedPeak* top = highestPeak(record);
    const std::string ordinal = std::to_string(number);
    return rowStart(kind, ordinal) + fileCell(record.file, record.name, "c" + ordinal) + "<td data-v=\"" +
           std::to_string(record.quality) + "\">" + badge(kind, record.quality, language) + "</td>" +
           numberCell(std::to_string(record.peaks.size())) +
           numberCell(top == nullptr ? std::string(dash) : fixedNumber(top->x, 1)) +
           numberCell(top == nullptr ? std::string(dash) : fixedNumber(top->y, 1)) +
           numberCell(std::to_string(record.mean)) + numberCell(fixedNumber(record.start, 1)) +
           numberCell(std::to_string(record.points)) + "<td class=\"r\"><div>" + escaped(record.reason) +
           "</div></td>" + digestCell(record.sha256) + "</tr>\n";
}

std::string tableRow(const FailureRecord& failure, std::size_t number, Language language) {
    constexpr int numberCells = 6;
    std::string row = rowStart(GradeKind::failed, std::to_string(number)) +
                      fileCell(failure.file, std::string(fileNameOf(failure.file)), {}) + "<td>" +
                      badge(GradeKind::failed, 0, language) + "</td>";
    for (int i = 0; i < numberCells; ++i)
        row += numberCell(std::string(dash));
    return row + "<td class=\"r\">" + escaped(failure.error) + "</td><td class=\"d\">" + std::string(dash) +
           "</td></tr>\n";
}

std::string curveCard(const GradeRecord& record, std::size_t number, Language language) {
    const GradeKind kind = kindOf(record);
    const std::string ordinal = std::to_string(number);
    const std::string folder = folderOf(record.file, record.name);
    std::string card = R"(<article class="card" id="c)" + ordinal + "\">\n<header><h3 id=\"h" + ordinal +
                       "\">" + shortenedSpan(record.name, cardNameWidth) + "</h3>" +
                       badge(kind, record.quality, language) + "</header>\n";
    if (!folder.empty())
        card += "<p class=\"folder\">" + shortenedSpan(folder, pathWidth) + "</p>\n";
    card += CurveChart(record, language).svg("h" + ordinal + " r" + ordinal);
    card += R"(<p class="reason" id="r)" + ordinal + "\">" + escaped(record.reason) + "</p>\n";
    card += warningList(record.warnings, language) + figures(record, language);
    return card + "<p class=\"digest\">SHA-256 <code>" + escaped(record.sha256) + "</code></p>\n</article>\n";
}

} // namespace gradereport
