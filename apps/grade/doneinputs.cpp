#include "doneinputs.h"

#include "gradereport/jsonlinereader.h"
#include "linereader.h"

#include <algorithm>
#include <istream>
#include <stdexcept>

namespace grade {

namespace {

/// Smoothing leaves at most some thousand peaks of a curve of any length, which take less than a megabyte.
constexpr std::size_t longestLine = 4U << 20U;

bool same(const gradereport::GradeSettings& a, const gradereport::GradeSettings& b) {
    return a.sensitivity == b.sensitivity && a.coelution == b.coelution && a.height == b.height;
}

[[noreturn]] void refuse(const std::string& name, std::uint64_t line) {
    throw std::runtime_error(
        name + ", line " + std::to_string(line) +
        ": this is no line that vorn-grade writes as JSON; check what the file is, or take "
        "the line out to have its input graded again.");
}

std::uint8_t valueOf(char digit) {
    return static_cast<std::uint8_t>(digit <= '9' ? digit - '0' : digit - 'a' + 10);
}

} // namespace

DoneInputs::Digest DoneInputs::digestOf(std::string_view sha256) {
    Digest digest{};
    for (std::size_t i = 0; i < digest.size(); ++i) {
        digest[i] = static_cast<std::uint8_t>(valueOf(sha256[2 * i]) << 4U | valueOf(sha256[2 * i + 1]));
    }
    return digest;
}

void DoneInputs::add(std::string_view sha256) {
    m_digests.push_back(digestOf(sha256));
}

void DoneInputs::settle() {
    std::sort(m_digests.begin(), m_digests.end());
    m_digests.erase(std::unique(m_digests.begin(), m_digests.end()), m_digests.end());
}

bool DoneInputs::contains(std::string_view sha256) const {
    return std::binary_search(m_digests.begin(), m_digests.end(), digestOf(sha256));
}

DoneLines readDoneLines(std::istream& stream, const std::string& name,
                        const gradereport::GradeSettings& settings, std::string_view version) {
    DoneLines done;
    LineReader lines(stream, longestLine);
    while (lines.next()) {
        if (lines.found() == LineReader::Found::rest && gradereport::beginsJsonLine(lines.text())) {
            done.tornLine = lines.number();
            break;
        }
        const gradereport::GradeLine line = lines.found() == LineReader::Found::line
                                                ? gradereport::readJsonLine(lines.text())
                                                : gradereport::GradeLine();
        if (line.kind == gradereport::LineKind::other) {
            refuse(name, lines.number());
        }
        if (line.kind == gradereport::LineKind::grade && same(line.settings, settings) &&
            line.version == version) {
            done.inputs.add(line.sha256);
        }
        done.wholeBytes = lines.begin() + lines.text().size() + 1;
    }
    if (stream.bad()) {
        throw std::runtime_error(name +
                                 ": the file can't be read to its end; check that it is a file, and the "
                                 "drive.");
    }
    done.inputs.settle();
    return done;
}

} // namespace grade
