#pragma once

#include "chromato/chromatogram.h"
#include "core/exception.h"
#include "log/methodscope.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace algo::chromato {

/// Makes a chromatogram without the peaks that a derived class answers true for.
template <class Scalar, class Values>
class PeakFilter {
public:
    using PeakType = Peak<Scalar, Values>;
    using PeakPosition = typename std::vector<PeakType>::const_iterator;
    using ChromatogramType = Chromatogram<Scalar, Values>;

    /// True removes the peak. The argument stands in the list under test, so neighbours can be seen.
    virtual bool isFiltered(PeakPosition peak) const = 0;

    /// The peaks that pass, in their order, on the same signal; the source stays as it is. Raises for an
    /// empty pointer. `log` may be null.
    std::shared_ptr<ChromatogramType> apply(const std::shared_ptr<const ChromatogramType>& chromatogram,
                                            log::Node* log) const {
        const log::MethodScope scope(log, __PRETTY_FUNCTION__);
        if (!chromatogram) {
            ALGO_RAISE("The chromatogram is not defined");
        }
        const std::vector<PeakType>& peaks = chromatogram->peaks();
        std::vector<PeakType> kept;
        kept.reserve(peaks.size());
        for (auto peak = peaks.begin(); peak != peaks.end(); ++peak) {
            if (!isFiltered(peak)) {
                kept.push_back(*peak);
            }
        }
        scope.remark("peaks filtered: ", peaks.size() - kept.size());
        return std::make_shared<ChromatogramType>(std::move(kept), chromatogram->signal());
    }

protected:
    // Filters are plain objects on the stack; none is owned through this base.
    ~PeakFilter() = default;
};

} // namespace algo::chromato
