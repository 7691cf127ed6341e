#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace grade {

/// How the paths of a list are told apart.
enum class PathEnd {
    line, ///< a line feed, with or without a carriage return before it
    zero  ///< a zero byte, as `find -print0` writes them; the path may hold any other byte
};

/// The paths in a stream, taken one at a time, so that a list may be endless. The stream outlives it.
class PathList {
public:
    PathList(std::istream& stream, PathEnd end);

    /// The next path that is not empty, once the stream has all of it; none at the end.
    [[nodiscard]] std::optional<std::string> next();

    /// Whether the stream broke off before its end.
    [[nodiscard]] bool broken() const;

private:
    std::istream& m_stream;
    PathEnd m_end;
};

} // namespace grade
