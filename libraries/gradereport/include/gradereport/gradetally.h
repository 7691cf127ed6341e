#pragma once

#include "gradereport/gradekind.h"

#include <array>
#include <cstddef>

namespace gradereport {

/// Counts of files by what became of them.
class GradeTally {
public:
    void add(GradeKind kind) { ++m_counts[static_cast<std::size_t>(kind)]; }

    [[nodiscard]] std::size_t count(GradeKind kind) const { return m_counts[static_cast<std::size_t>(kind)]; }

    [[nodiscard]] std::size_t total() const {
        std::size_t sum = 0;
        for (const std::size_t count : m_counts)
            sum += count;
        return sum;
    }

    [[nodiscard]] std::size_t graded() const { return total() - count(GradeKind::failed); }

private:
    std::array<std::size_t, gradeKindCount> m_counts{};
};

} // namespace gradereport
