#include "gradereport/candidates.h"

#include "chromato/peakfiltercoelution.h"

#include <algorithm>

namespace gradereport {

namespace {

/// The first position that `falls` holds for; `falls` holds from some position on, or up to one.
template <class Test>
std::size_t turningPoint(const std::vector<double>& values, const Test& falls) {
    if (values.empty())
        return 0;
    const bool atFirst = falls(values.front());
    const auto turn = std::partition_point(values.begin(), values.end(),
                                           [&](double value) { return falls(value) == atFirst; });
    return static_cast<std::size_t>(turn - values.begin());
}

} // namespace

Candidates::Candidates(const Grading& detected, double leastCoelution) : m_mean(detected.mean) {
    const algo::chromato::PeakFilterCoelution<double, std::vector<double>> filter(leastCoelution, nullptr);
    const auto& late = detected.late->peaks();
    for (auto peak = late.begin(); peak != late.end(); ++peak) {
        if (!filter.isFiltered(peak))
            m_candidates.push_back({filter.ratio(*peak), peak->top()->y});
    }
}

int Candidates::quality(double coelution, double height) const {
    int standing = 0;
    double top = 0.0;
    for (const Candidate& each : m_candidates) {
        if (!(coelution > each.ratio)) { // a ratio that is no number stands
            ++standing;
            top = each.top;
        }
    }
    if (standing != 1)
        return standing;
    return static_cast<double>(m_mean) * height > top ? 3 : 1;
}

std::vector<std::size_t> Candidates::changesByCoelution(const std::vector<double>& criteria,
                                                        double height) const {
    std::vector<std::size_t> falls;
    for (const Candidate& each : m_candidates) {
        const std::size_t fall =
            turningPoint(criteria, [&each](double criterion) { return criterion > each.ratio; });
        if (fall < criteria.size())
            falls.push_back(fall);
    }
    std::sort(falls.begin(), falls.end());
    falls.erase(std::unique(falls.begin(), falls.end()), falls.end());
    const auto changesNothing = [&](std::size_t position) {
        return quality(criteria[position], height) == quality(criteria[position - 1], height);
    };
    falls.erase(std::remove_if(falls.begin(), falls.end(), changesNothing), falls.end());
    return falls;
}

std::vector<std::size_t> Candidates::changesByHeight(double coelution,
                                                     const std::vector<double>& heights) const {
    // Only the height of a lone peak shows in the code, and a factor times a mean only grows or only falls.
    const std::size_t turn =
        turningPoint(heights, [&](double height) { return quality(coelution, height) == 3; });
    const bool lone = turn < heights.size();
    return lone ? std::vector<std::size_t>{turn} : std::vector<std::size_t>{};
}

} // namespace gradereport
