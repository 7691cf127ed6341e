#pragma once

#include <cstddef>
#include <string_view>

namespace rockeval {

/// Walks the lines of a text in one pass without copying. A line ends in CRLF, LF or a CR alone, and the
/// ending is no part of it. The text outlives the cursor.
class LineCursor {
public:
    explicit LineCursor(std::string_view text) : m_rest(text) {}

    /// Moves to the next line; false behind the last one.
    bool next() {
        if (m_rest.empty())
            return false;
        std::size_t end = 0;
        while (end < m_rest.size() && m_rest[end] != '\n' && m_rest[end] != '\r')
            ++end;
        m_line = m_rest.substr(0, end);
        m_closed = end < m_rest.size();
        const bool twoBytes = m_rest.substr(end, 2) == "\r\n";
        m_rest.remove_prefix(end + (twoBytes ? 2U : m_closed ? 1U : 0U));
        ++m_number;
        return true;
    }

    std::string_view line() const { return m_line; }

    /// Number of the current line; 0 before the first one.
    std::size_t number() const { return m_number; }

    /// Whether the current line has an ending; only the last one may lack it.
    bool closed() const { return m_closed; }

    /// What stands behind the current line.
    std::string_view rest() const { return m_rest; }

private:
    std::string_view m_rest;
    std::string_view m_line;
    std::size_t m_number = 0;
    bool m_closed = false;
};

} // namespace rockeval
