#include "rockeval/channels.h"

#include <algorithm>

namespace rockeval {

namespace {

std::vector<float> narrowed(const std::vector<double>& values) {
    std::vector<float> result(values.size());
    std::transform(values.begin(), values.end(), result.begin(), [](double value) { return narrow(value); });
    return result;
}

} // namespace

Channels toChannels(const PyrolysisCurve& curve) {
    return {narrowed(curve.time), narrowed(curve.fid)};
}

} // namespace rockeval
