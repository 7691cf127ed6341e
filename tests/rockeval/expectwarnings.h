#pragma once

#include "rockeval/warning.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Each of `expected` is the line of a warning, a blank, and a part of its text; there are no others.
inline void expectWarnings(const std::vector<rockeval::Warning>& warnings,
                           const std::vector<std::string>& expected) {
    ASSERT_EQ(warnings.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::size_t blank = expected[i].find(' ');
        EXPECT_EQ(std::to_string(warnings[i].line), expected[i].substr(0, blank));
        EXPECT_NE(warnings[i].text.find(expected[i].substr(blank + 1)), std::string::npos)
            << warnings[i].text;
    }
}
