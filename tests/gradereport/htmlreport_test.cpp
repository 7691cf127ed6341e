#include "htmlcheck.h"
#include "samplerecord.h"

#include <algorithm>

using namespace gradereport;

namespace {

GradeRecord graded(int quality) {
    GradeRecord record = sampleRecord();
    record.quality = quality;
    return record;
}

} // namespace

TEST(HtmlReport, counts_settings_rows_and_cards_tell_the_run) {
    const std::string page =
        pageOf({graded(1), graded(1), graded(2), graded(3), graded(0), graded(5)}, {{"x/b.S00", "No rows."}});
    checkedTags(page);
    std::vector<std::string> counts;
    for (const std::string& tile : between(page, "class=\"tile\"", "</button>"))
        counts.push_back(between(tile, "<b>", "</b>").at(0));
    EXPECT_EQ(counts, (std::vector<std::string>{"7", "2", "1", "1", "1", "1", "1"}));
    EXPECT_NE(page.find("<dt>Coelution</dt><dd>1.25</dd>"), std::string::npos);
    EXPECT_EQ(between(page, "<tr data-i=", "</tr>").size(), 7U);
    EXPECT_EQ(between(page, "<article", "</article>").size(), 6U);
    const std::string failed = between(page, "data-k=\"failed\">", "</tr>").back();
    EXPECT_NE(failed.find("No rows."), std::string::npos);
}

TEST(HtmlReport, a_grade_is_told_by_word_shape_and_numbers) {
    const std::string page = pageOf({graded(2)});
    for (const std::string part :
         {"#twin\"/></svg>double", "<td class=\"n\">70.1</td><td class=\"n\">90.0</td>", // the highest peak
          "marker twin", "marker flat", "height 90, reaches", "height 40.2, below", "coelution ratio 1.125",
          "Line 3: no number.", "2 \u00d7 mean = 80"})
        EXPECT_NE(page.find(part, page.find("<tr data-i=")), std::string::npos) << part;
    const std::string flat = between(pageOf({graded(3)}), "<article", "</article>").at(0);
    EXPECT_EQ(between(flat, "class=\"marker flat\"", "</path>").size(), 1U)
        << "whatever the grade, only the peak below the threshold has the square";
}

TEST(HtmlReport, speaks_french_when_asked_and_leaves_no_english_word) {
    GradeRecord record = graded(2);
    record.file = record.name = "a.S00";
    record.reason.clear();
    record.warnings.assign(21, "w");
    const std::string whole = pageOf({record}, {{"b.S00", "e"}}, Language::french);
    checkedTags(whole);
    const std::string page = whole.substr(0, whole.find("<script>"));
    EXPECT_EQ(page.find("<html lang=\"fr\">"), page.find("<html"));
    std::string texts; // between the tags, and what is read aloud
    for (const char* const begin : {">", "title=\"", "label=\"", "placeholder=\"", "words=\""})
        for (const std::string& text :
             between(page.substr(page.find("</style>")), begin, *begin == '>' ? "<" : "\""))
            texts += " " + text;
    for (const char* const word :
         {" of ", "File", "Peak", "Grade", "Height", "height", "Mean", "Reason", "Curve", "peak", "warning",
          " and ", "Find", "shown", "signal</", "failed", "Left"})
        EXPECT_EQ(texts.find(word), std::string::npos) << word << " in" << texts;
    EXPECT_NE(texts.find("Pic à 70.1 s"), std::string::npos);
}

TEST(HtmlReport, hostile_text_stays_text) {
    const std::vector<std::string> names{
        "\"><script>alert(1)</script>", "</style><b onload='x'>&amp;", "<!--",
        "bad\xff\xfe\nname\x01",        std::string(10000, '<'),       "]]>\u202e&lt;"};
    const std::vector<std::string> benign = checkedTags(pageOf(
        std::vector<GradeRecord>(names.size(), sampleRecord()), std::vector<FailureRecord>(names.size())));
    std::vector<GradeRecord> records;
    std::vector<FailureRecord> failures;
    for (const std::string& name : names) {
        GradeRecord record = sampleRecord();
        record.file = record.name = record.sha256 = record.reason = record.warnings[0] = name;
        records.push_back(record);
        failures.push_back({name, name});
    }
    const std::string page = pageOf(records, failures);
    const std::vector<std::string> tags = checkedTags(page);
    const auto countOf = [](const std::vector<std::string>& all, const std::string& name) {
        return std::count_if(all.begin(), all.end(), [&name](const std::string& tag) {
            return tag.compare(0, name.size(), name) == 0;
        });
    };
    for (const std::string name : {"script", "style", "tr", "article", "text", "path", "button"})
        EXPECT_EQ(countOf(tags, name), countOf(benign, name)) << name;
    EXPECT_EQ(page.find("<b onload"), std::string::npos);
    EXPECT_NE(page.find("bad\uFFFD\uFFFD\u240aname\u2401"), std::string::npos);
    EXPECT_EQ(page.find('\xff'), std::string::npos);
}

TEST(HtmlReport, nothing_is_loaded_from_elsewhere) {
    const std::string page = pageOf({graded(1)}, {{"b.S00", "No rows."}});
    EXPECT_NE(page.find("default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'"),
              std::string::npos);
    for (const std::string outside :
         {"http:", "https:", "//www", " src=", "url(", "@import", "eval(", "innerHTML"})
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
}

TEST(HtmlReport, ids_are_unique_and_links_lead_somewhere) {
    const std::string page = pageOf({graded(1), graded(0), graded(5)}, {{"b.S00", "No rows."}});
    std::set<std::string> ids;
    for (const std::string& id : between(page, " id=\"", "\""))
        EXPECT_TRUE(ids.insert(id).second) << id;
    for (const std::string& link : between(page, "href=\"#", "\""))
        EXPECT_EQ(ids.count(link), 1U) << link;
    checkedTags(pageOf({}));
    EXPECT_NE(pageOf({}).find("<b>0</b>"), std::string::npos);
}
