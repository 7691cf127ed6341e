#pragma once

#include "gradereport/graderecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace grade {

/// The inputs that earlier runs graded, known by their digests; takes 32 bytes for each.
class DoneInputs {
public:
    /// Adds a digest of 64 hexadecimal digits; `settle` comes before the first look-up.
    void add(std::string_view sha256);
    void settle();

    [[nodiscard]] bool contains(std::string_view sha256) const;
    [[nodiscard]] std::size_t size() const { return m_digests.size(); }

private:
    using Digest = std::array<std::uint8_t, 32>;
    [[nodiscard]] static Digest digestOf(std::string_view sha256);

    std::vector<Digest> m_digests; ///< sorted, each once
};

/// What a stream of JSON lines holds.
struct DoneLines {
    DoneInputs inputs;            ///< graded with the asked settings by the asked version
    std::uint64_t wholeBytes = 0; ///< up to and with the last line feed
    std::uint64_t tornLine = 0;   ///< number of the line that has no line feed, 0 where there is none
};

/// Reads what one or more runs wrote as JSON lines. A run that was stopped leaves a last line without its
/// line feed, which isn't counted. Throws `std::runtime_error`, with a sentence that names `name` and the
/// line, where a line is nothing that a run writes and where the stream breaks off.
[[nodiscard]] DoneLines readDoneLines(std::istream& stream, const std::string& name,
                                      const gradereport::GradeSettings& settings, std::string_view version);

} // namespace grade
