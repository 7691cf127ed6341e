#include "pathlist.h"

#include <istream>

namespace grade {

PathList::PathList(std::istream& stream, PathEnd end) : m_stream(stream), m_end(end) {}

std::optional<std::string> PathList::next() {
    std::string path;
    while (std::getline(m_stream, path, m_end == PathEnd::zero ? '\0' : '\n')) {
        if (m_end == PathEnd::line && !path.empty() && path.back() == '\r') {
            path.pop_back();
        }
        if (!path.empty()) {
            return path;
        }
    }
    return std::nullopt;
}

bool PathList::broken() const {
    return m_stream.bad();
}

} // namespace grade
