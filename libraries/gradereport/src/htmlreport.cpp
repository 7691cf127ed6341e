#include "gradereport/htmlreport.h"

#include "gradereport/shortestnumber.h"
#include "gradesymbol.h"
#include "htmltext.h"
#include "reportcard.h"
#include "reportscript.h"
#include "reportstyle.h"

#include <array>
#include <ostream>
#include <string_view>
#include <utility>

namespace gradereport {

namespace {

constexpr std::string_view head = R"(<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'; base-uri 'none'; form-action 'none'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<meta name="referrer" content="no-referrer">
)";

struct Column {
    std::string_view style;
    const char* english;
    const char* french;
};

constexpr std::array<Column, 10> columns{{{"", "File", "Fichier"},
                                          {"", "Grade", "Évaluation"},
                                          {"n", "Peaks", "Pics"},
                                          {"n", "Top (s)", "Sommet (s)"},
                                          {"n", "Height", "Hauteur"},
                                          {"n", "Mean", "Moyenne"},
                                          {"n", "Start (s)", "Départ (s)"},
                                          {"n", "Points", "Points"},
                                          {"r", "Reason", "Raison"},
                                          {"d", "SHA-256", "SHA-256"}}};

/// A count that filters when pressed; the script enables it.
std::string tile(std::string_view kind, const std::string& icon, std::string_view word, std::size_t count) {
    std::string text = R"(<button type="button" class="tile" aria-pressed="false" disabled data-k=")";
    text.append(kind).append("\"><b>").append(std::to_string(count)).append("</b><span>");
    return text.append(icon).append(word).append("</span></button>\n");
}

std::string setting(std::string_view name, const std::string& value) {
    return "<div><dt>" + std::string(name) + "</dt><dd>" + value + "</dd></div>";
}

std::string legendEntry(std::string_view drawing, std::string_view text) {
    std::string entry = R"(<li><svg viewBox="0 0 28 16" aria-hidden="true">)";
    return entry.append(drawing).append("</svg>").append(text).append("</li>\n");
}

} // namespace

HtmlReport::HtmlReport(const GradeSettings& settings, std::string version, Language language)
    : m_settings(settings), m_version(std::move(version)), m_language(language) {}

void HtmlReport::add(const GradeRecord& record) {
    m_tally.add(kindOf(record));
    m_rows += tableRow(record, m_tally.total(), m_language);
    m_cards += curveCard(record, m_tally.total(), m_language);
}

void HtmlReport::addFailure(const FailureRecord& failure) {
    m_tally.add(GradeKind::failed);
    m_rows += tableRow(failure, m_tally.total(), m_language);
}

void HtmlReport::write(std::ostream& out) const {
    writeHead(out);
    writeSummary(out);
    writeTable(out);
    writeCards(out);
    out << "<script>" << reportScript << "</script>\n</body>\n</html>\n";
}

void HtmlReport::writeHead(std::ostream& out) const {
    out << "<!DOCTYPE html>\n<html lang=\"" << say("en", "fr") << "\">\n"
        << head << "<title>" << say("Grades of pyrolysis curves", "Évaluation de courbes de pyrolyse")
        << "</title>\n<style>" << reportStyle << "</style>\n</head>\n<body>\n"
        << symbolDefinitions();
}

void HtmlReport::writeSummary(std::ostream& out) const {
    out << "<header class=\"page\">\n<h1>"
        << say("Grades of pyrolysis curves", "Évaluation de courbes de pyrolyse") << "</h1>\n<dl>"
        << setting(say("Sensitivity", "Sensibilité"), shortestNumber(m_settings.sensitivity))
        << setting(say("Coelution", "Coélution"), shortestNumber(m_settings.coelution))
        << setting(say("Height", "Hauteur"), shortestNumber(m_settings.height))
        << setting(say("Version", "Version"), escaped(m_version))
        << "</dl>\n</header>\n<section class=\"tiles\" aria-label=\""
        << say("Files by grade", "Fichiers par évaluation") << "\">\n"
        << tile("", "", say("all files", "tous les fichiers"), m_tally.total());
    for (const GradeKind kind : {GradeKind::good, GradeKind::twin, GradeKind::flat, GradeKind::none,
                                 GradeKind::other, GradeKind::failed})
        out << tile(kindClass(kind), kindIcon(kind), kindWord(kind, m_language), m_tally.count(kind));
    out << "</section>\n";
}

void HtmlReport::writeTable(std::ostream& out) const {
    const std::string find = say("Find in file or reason", "Fichier ou raison");
    out << "<section aria-labelledby=\"files-title\">\n<div class=\"bar\"><h2 id=\"files-title\">"
        << say("Files", "Fichiers")
        << "</h2>\n"
           "<p id=\"shown\" role=\"status\" data-words=\""
        << say("%1 of %2 shown", "%1 sur %2 affichés")
        << "\"></p>\n"
           "<input id=\"query\" type=\"search\" placeholder=\""
        << find << "\" aria-label=\"" << find
        << "\" hidden></div>\n"
           "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-labelledby=\"files-title\">\n"
           "<table id=\"files\">\n<thead><tr>";
    for (const Column& column : columns) {
        out << R"(<th scope="col" class=")" << column.style << R"("><button type="button" disabled>)"
            << say(column.english, column.french) << "</button></th>";
    }
    out << "</tr></thead>\n<tbody>\n" << m_rows << "</tbody>\n</table>\n</div>\n</section>\n";
}

std::string HtmlReport::legend() const {
    return "<ul class=\"legend\">\n" +
           legendEntry(R"(<path class="raw" d="M2 11l6-5 6 4 6-6 6 3"/>)", say("raw signal", "signal brut")) +
           legendEntry(R"(<path class="smoothed" d="M2 11q12-10 24-4"/>)",
                       say("smoothed signal", "signal lissé")) +
           legendEntry(R"(<path class="out" d="M2 1h24v14h-24z"/>)", say("left out", "laissé de côté")) +
           legendEntry(R"(<path class="threshold" d="M1 8H27"/>)",
                       say("height threshold", "seuil de hauteur")) +
           legendEntry(R"(<path class="valley" d="M14 2v12"/>)", say("valley of a peak", "vallée d'un pic")) +
           legendEntry(R"(<path class="marker flat" d="M14 8m-4.5-4.5h9v9h-9z"/>)",
                       say("peak below threshold", "pic sous le seuil")) +
           legendEntry(R"(<path class="removed" d="M11 8a3 3 0 1 0 6 0a3 3 0 1 0-6 0"/>)",
                       say("removed candidate", "candidat retiré")) +
           "</ul>\n";
}

void HtmlReport::writeCards(std::ostream& out) const {
    if (m_cards.empty())
        return;
    out << "<section aria-labelledby=\"curves-title\">\n<h2 id=\"curves-title\">" << say("Curves", "Courbes")
        << "</h2>\n"
        << legend() << "<div id=\"cards\">\n"
        << m_cards << "</div>\n</section>\n";
}

} // namespace gradereport
