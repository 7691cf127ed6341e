#include "htmlcheck.h"
#include "samplerecord.h"

#include "gradereport/htmlreport.h"

#include <algorithm>
#include <set>
#include <sstream>

using namespace gradereport;

namespace {

std::string pageOf(const std::vector<GradeRecord>& records, const std::vector<FailureRecord>& failures = {}) {
    HtmlReport report({}, "1.2");
    for (const GradeRecord& record : records)
        report.add(record);
    for (const FailureRecord& failure : failures)
        report.addFailure(failure);
    std::ostringstream out;
    report.write(out);
    return out.str();
}

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
    const std::string row = between(page, "<tr data-i=", "</tr>").at(0);
    EXPECT_NE(row.find("<use href=\"#twin\"/></svg>double"), std::string::npos);
    EXPECT_NE(row.find("<td class=\"n\">70.1</td><td class=\"n\">90.0</td>"), std::string::npos)
        << "highest peak";
    EXPECT_NE(row.find("title=\"" + sampleRecord().sha256), std::string::npos);
    const std::string card = between(page, "<article", "</article>").at(0);
    EXPECT_NE(card.find("class=\"marker twin\""), std::string::npos);
    EXPECT_NE(card.find("class=\"marker flat\""), std::string::npos)
        << "a peak below the threshold looks different";
    EXPECT_NE(card.find("height 90, reaches"), std::string::npos);
    EXPECT_NE(card.find("height 40.2, below"), std::string::npos);
    EXPECT_NE(card.find("coelution ratio 1.125"), std::string::npos);
    EXPECT_NE(card.find("Line 3: no number."), std::string::npos);
    EXPECT_NE(card.find("2 \u00d7 mean = 80"), std::string::npos);
    const std::string flat = between(pageOf({graded(3)}), "<article", "</article>").at(0);
    EXPECT_EQ(between(flat, "class=\"marker flat\"", "</path>").size(), 1U)
        << "of three peaks only the one below the threshold has the square";
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
    EXPECT_EQ(between(page, "<h3 id=\"h5\">", "</h3>").at(0).size(),
              std::string("<span title=\"\">\u2026</span>").size() + 4 * (10000 + 95))
        << "10,000 letters in the title, 95 and an ellipsis to be seen, each an entity";
}

TEST(HtmlReport, nothing_is_loaded_from_elsewhere) {
    const std::string page = pageOf({graded(1)}, {{"b.S00", "No rows."}});
    EXPECT_NE(page.find("default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'"),
              std::string::npos);
    for (const std::string outside :
         {"http:", "https:", "//www", " src=", "url(", "@import", "eval(", "innerHTML"})
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
}

TEST(HtmlReport, ids_are_unique_and_links_and_labels_lead_somewhere) {
    const std::string page = pageOf({graded(1), graded(0), graded(5)}, {{"b.S00", "No rows."}});
    std::set<std::string> ids;
    for (const std::string& id : between(page, " id=\"", "\""))
        EXPECT_TRUE(ids.insert(id).second) << id;
    for (const std::string& link : between(page, "href=\"#", "\""))
        EXPECT_EQ(ids.count(link), 1U) << link;
    for (const std::string& labels : between(page, "aria-labelledby=\"", "\"")) {
        std::istringstream words(labels);
        for (std::string id; words >> id;)
            EXPECT_EQ(ids.count(id), 1U) << id;
    }
}

TEST(HtmlReport, equal_runs_give_equal_bytes_and_an_empty_run_gives_a_page) {
    EXPECT_EQ(pageOf({graded(1), graded(3)}), pageOf({graded(1), graded(3)}));
    const std::string page = pageOf({});
    checkedTags(page);
    EXPECT_NE(page.find("<b>0</b>"), std::string::npos);
}
