#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <optional>

namespace grade {

/// The count of files done, on one line that is written over; nothing at all when not shown. Without a total
/// where nobody knows it.
class Progress {
public:
    Progress(std::ostream& stream, bool shown, std::optional<std::size_t> total);
    ~Progress();

    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more file is done.
    void step();

    /// Takes the line away, so that other text can stand there.
    void clear();

private:
    std::ostream& m_stream;
    bool m_shown;
    bool m_visible = false;
    std::optional<std::size_t> m_total;
    std::size_t m_done = 0;
    std::chrono::steady_clock::time_point m_lastShown;
};

} // namespace grade
