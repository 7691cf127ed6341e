#include "gradereport/gradekind.h"

#include <algorithm>
#include <array>

namespace gradereport {

GradeKind kindOfQuality(int quality) {
    switch (quality) {
    case 0:
        return GradeKind::none;
    case 1:
        return GradeKind::good;
    case 2:
        return GradeKind::twin;
    case 3:
        return GradeKind::flat;
    default:
        return GradeKind::other;
    }
}

GradeKind kindOf(const GradeRecord& record) {
    return kindOfQuality(record.quality);
}

std::string_view kindWord(GradeKind kind, Language language) {
    constexpr std::array<std::string_view, gradeKindCount> words{"good",    "double", "flat",
                                                                 "no peak", "other",  "failed"};
    constexpr std::array<std::string_view, gradeKindCount> french{"bonne",     "double", "plate",
                                                                  "aucun pic", "autre",  "échec"};
    return (language == Language::french ? french : words)[static_cast<std::size_t>(kind)];
}

const ReportedPeak* highestPeak(const GradeRecord& record) {
    const auto highest =
        std::max_element(record.peaks.begin(), record.peaks.end(),
                         [](const ReportedPeak& a, const ReportedPeak& b) { return a.y < b.y; });
    return highest == record.peaks.end() ? nullptr : &*highest;
}

std::string_view fileNameOf(std::string_view path) {
    const std::size_t separator = path.find_last_of("/\\");
    if (separator == std::string_view::npos || separator + 1 == path.size())
        return path;
    return path.substr(separator + 1);
}

} // namespace gradereport
