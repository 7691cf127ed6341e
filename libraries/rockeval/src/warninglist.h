#pragma once

#include "rockeval/warning.h"

#include <string>
#include <utility>
#include <vector>

namespace rockeval {

/// Collects warnings. The first hundred are kept and the others counted, so that a file with a million
/// faults costs no memory for them; the text is made by a callable, which then is not called.
class WarningList {
public:
    template <typename MakeText>
    void add(std::size_t line, MakeText makeText) {
        if (m_kept.size() < most) {
            m_kept.push_back({line, makeText()});
        } else if (++m_further == 1) {
            m_firstFurther = line;
        }
    }

    /// The warnings, with one line for those that were only counted. Empties the list.
    std::vector<Warning> take() {
        if (m_further > 0) {
            m_kept.push_back(
                {m_firstFurther, "and " + std::to_string(m_further) + " more from this line on"});
        }
        m_further = 0;
        return std::exchange(m_kept, {});
    }

private:
    static constexpr std::size_t most = 100;

    std::vector<Warning> m_kept;
    std::size_t m_further = 0;
    std::size_t m_firstFurther = 0;
};

} // namespace rockeval
