#include "progress.h"

#include <ostream>

namespace grade {

namespace {
constexpr std::chrono::milliseconds interval{100};
}

Progress::Progress(std::ostream& stream, bool shown, std::optional<std::size_t> total)
    : m_stream(stream), m_shown(shown), m_total(total), m_lastShown(std::chrono::steady_clock::now()) {}

Progress::~Progress() {
    clear();
}

void Progress::step() {
    ++m_done;
    if (!m_shown) {
        return;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - m_lastShown < interval) {
        return;
    }
    m_lastShown = now;
    m_visible = true;
    m_stream << "\rgrading " << m_done;
    if (m_total) {
        m_stream << " of " << *m_total;
    }
    m_stream << "\x1b[K" << std::flush;
}

void Progress::clear() {
    if (m_visible) {
        m_stream << "\r\x1b[K" << std::flush;
        m_visible = false;
    }
}

} // namespace grade
