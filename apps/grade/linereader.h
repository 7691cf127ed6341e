#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace grade {

/// Reads a stream line by line and keeps no more of it than `limit` bytes, whatever it holds.
class LineReader {
public:
    enum class Found {
        line,   ///< a line and its line feed
        rest,   ///< bytes behind the last line feed
        tooLong ///< a line of more than `limit` bytes; reading can't go on
    };

    /// The stream outlives the reader.
    LineReader(std::istream& stream, std::size_t limit);

    /// Takes the next line into `text()`, without its line feed. False at the end of the stream, or where it
    /// broke off, which the stream's state tells.
    [[nodiscard]] bool next();

    [[nodiscard]] Found found() const { return m_found; }
    [[nodiscard]] const std::string& text() const { return m_text; }
    [[nodiscard]] std::uint64_t number() const { return m_number; } ///< of the line, from 1
    [[nodiscard]] std::uint64_t begin() const { return m_begin; }   ///< bytes of the stream before the line

private:
    std::istream& m_stream;
    std::size_t m_limit;
    Found m_found = Found::line;
    std::string m_text;
    std::uint64_t m_number = 0;
    std::uint64_t m_begin = 0;
    std::uint64_t m_end = 0;
};

} // namespace grade
