#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <vector>

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
    const auto isName = [](char letter) {
        return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '-';
    };
    std::size_t at = 0;
    const auto skipName = [&] {
        const std::size_t start = at;
        while (at < tag.size() && isName(tag[at]))
            ++at;
        return at > start;
    };
    if (!skipName())
        return false;
    while (at < tag.size() && tag[at] == ' ') {
        ++at;
        if (!skipName())
            return false;
        if (tag.compare(at, 2, "=\"") != 0)
            continue;
        at = tag.find('"', at + 2);
        if (at == std::string::npos)
            return false;
        ++at;
    }
    return at == tag.size() || tag.substr(at) == "/";
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
        if (tag[0] == '/') {
            if (open.empty() || open.back() != tag.substr(1)) {
                ADD_FAILURE() << "</" << tag.substr(1) << "> closes "
                              << (open.empty() ? "nothing" : open.back());
                return tags;
            }
            open.pop_back();
            continue;
        }
        if (!isStartTag(tag)) {
            ADD_FAILURE() << "malformed tag <" << tag.substr(0, 200);
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
