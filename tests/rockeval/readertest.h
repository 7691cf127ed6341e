#pragma once

#include "rockeval/french.h"
#include "rockeval/readerror.h"
#include "rockeval/warning.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Each of `expected` is the line of a warning, a blank, and a part of its text, which has a French form;
/// there are no others.
inline void expectWarnings(const std::vector<rockeval::Warning>& warnings,
                           const std::vector<std::string>& expected) {
    ASSERT_EQ(warnings.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::string& text = warnings[i].text;
        const std::size_t blank = expected[i].find(' ');
        EXPECT_EQ(std::to_string(warnings[i].line), expected[i].substr(0, blank));
        EXPECT_NE(text.find(expected[i].substr(blank + 1)), std::string::npos) << text;
        EXPECT_NE(rockeval::inFrench(text), text);
    }
}

/// `read` refuses in a sentence that begins with `place`, has `part` in it and a French form.
template <class Read>
void expectRefusal(const Read& read, const std::string& place, const std::string& part) {
    try {
        (void)read();
        ADD_FAILURE() << place << " is not refused: " << part;
    } catch (const rockeval::ReadError& error) {
        const std::string what = error.what();
        EXPECT_EQ(what.rfind(place + ": ", 0), 0U) << what;
        EXPECT_NE(what.find(part), std::string::npos) << what;
        EXPECT_NE(rockeval::inFrench(error.problem()), error.problem());
    }
}
