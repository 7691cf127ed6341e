#pragma once

#include "gradereport/htmlreport.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

inline std::string pageOf(const std::vector<gradereport::GradeRecord>& records,
                          const std::vector<gradereport::FailureRecord>& failures = {},
                          gradereport::Language language = gradereport::Language::english) {
    gradereport::HtmlReport report({}, "1.2", language);
    for (const auto& record : records)
        report.add(record);
    for (const auto& failure : failures)
        report.addFailure(failure);
    std::ostringstream out;
    report.write(out);
    return out.str();
}

/// Text of the page from each `begin` to the `end` behind it, without both.
inline std::vector<std::string> between(const std::string& page, const std::string& begin,
                                        const std::string& end) {
    std::vector<std::string> found;
    for (std::size_t at = page.find(begin); at != std::string::npos; at = page.find(begin, at)) {
        at += begin.size();
        found.push_back(page.substr(at, page.find(end, at) - at));
    }
    return found;
}

/// Whether the text between < and > is a start tag: a name, then attributes without a value or with one in
/// double quotes.
inline bool isStartTag(const std::string& tag) {
    std::string bare; // without the values: they may be too long for a regular expression
    bool quoted = false;
    for (const char letter : tag) {
        quoted = quoted != (letter == '"');
        if (!quoted)
            bare += letter;
    }
    static const std::regex form("[A-Za-z0-9-]+( [A-Za-z0-9-]+(=\")?)*/?");
    return !quoted && std::regex_match(bare, form);
}

/// Start tags of a page. Fails the test where a tag is not closed, attributes are not quoted or a raw <
/// stands in the text.
inline std::vector<std::string> checkedTags(const std::string& page) {
    static const std::set<std::string> empty{"meta", "input"};
    std::vector<std::string> open;
    std::vector<std::string> tags;
    std::size_t at = page.find('\n'); // behind the document type
    while ((at = page.find('<', at)) != std::string::npos) {
        const std::size_t close = page.find('>', at);
        const std::string tag = page.substr(at + 1, close - at - 1);
        at = close;
        if (tag[0] == '/' && !open.empty() && open.back() == tag.substr(1)) {
            open.pop_back();
            continue;
        }
        if (!isStartTag(tag)) {
            ADD_FAILURE() << "malformed or misplaced tag <" << tag.substr(0, 200);
            return tags;
        }
        tags.push_back(tag);
        const std::string name = tag.substr(0, tag.find_first_of(" /"));
        if (tag.back() == '/' || empty.count(name) != 0)
            continue;
        open.push_back(name);
        if (name == "script" || name == "style")
            at = page.find("</" + name, at);
    }
    EXPECT_TRUE(open.empty()) << open.back() << " stays open";
    return tags;
}
