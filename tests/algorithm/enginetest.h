#pragma once

#include "sourcerockqaqc/srqaqcmngr.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// What the engine's tests share: short names, curves, and the check of a failure's text.
namespace enginetest {

using Values = std::vector<double>;
using Signal = algo::core::Signal1D<double, Values>;
using SignalPointer = std::shared_ptr<const Signal>;
using IsoSignal = algo::core::Signal1DIsoSampling<double, Values>;
using Iterator = algo::core::SignalIterator<double, Values>;
using Line = algo::core::Line<double, Values>;
using Peak = algo::chromato::Peak<double, Values>;
using Chromatogram = algo::chromato::Chromatogram<double, Values>;
using Noise = algo::chromato::NoiseXNO<double, Values>;
using Chromatograph = algo::chromato::Chromatograph<double, Values, Noise>;
using Detector = algo::chromato::PeaksDetectorXNO<double, Values, Noise>;
using Smoother = algo::filter::FilterSmootherLinear<double, Values>;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;
using Failure = algo::core::Exception<std::runtime_error>;

constexpr const char* noLastX =
    "try to get X with an index out of signal's data range (size=0, index=18446744073709551615)";

inline std::shared_ptr<Signal> signalOf(const Values& x, const Values& y, int order = 2) {
    const auto of = [](const Values& values) { return [&values](std::uint64_t i) { return values[i]; }; };
    return std::make_shared<Signal>(x.size(), of(x), of(y), order);
}

/// Ordinates over `x0`, `x0 + 1`, `x0 + 2` and so on.
inline std::shared_ptr<Signal> counted(const Values& y, double x0 = 0) {
    const auto xAt = [x0](std::uint64_t i) { return x0 + static_cast<double>(i); };
    return std::make_shared<Signal>(
        y.size(), xAt, [&y](std::uint64_t i) { return y[i]; }, 2);
}

struct Bell {
    double centre, height, width;
};

/// A falling start, a baseline of 10 and bells without a flat or a straight stretch, of which the second
/// derivative would be rounding noise. Only operations with one right result, so the same everywhere.
inline std::shared_ptr<Signal> curve(const std::vector<Bell>& bells, int n = 201) {
    Values y;
    for (int i = 0; i < n; ++i) {
        y.push_back(10 + 900.0 / (1 + i * i));
        for (const Bell& bell : bells) {
            const double distance = (i - bell.centre) / bell.width;
            const double q = 1 + distance * distance;
            y.back() += bell.height / (q * q);
        }
    }
    return counted(y);
}

/// A detector with the chain's sensitivity, on peaks that are `width` samples wide.
inline Detector detectorOf(const SignalPointer& signal, double width,
                           const Noise& noise = Noise(1, 1, 1, 0, 0)) {
    Chromatograph chromatograph(signal->size(), noise, width, 0, 1);
    chromatograph.averagePeakWidth = width; // also a width of 0
    return Detector(chromatograph, 0.5);
}

inline bool sameBits(const Values& a, const Values& b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * 8) == 0);
}

/// Whether `action` raises the failure of `function`, given as Class::function, in `header`: the fixed
/// pieces, the file and the message to the letter, the signature as far as every compiler agrees.
inline testing::AssertionResult raises(const std::function<void()>& action, const std::string& function,
                                       const std::string& header, const std::string& message) {
    const std::string tail = " ( file libraries/internal/algorithm/include/" + header + ") :\n" + message;
    const std::size_t colons = function.find("::");
    try {
        action();
    } catch (const Failure& failure) {
        const std::string text = failure.what();
        const std::string signature = text.substr(0, text.find(" ( file "));
        const auto named = [&](const std::string& part) { return signature.find(part) != std::string::npos; };
        if (signature.rfind("Error in ", 0) == 0 && text.substr(signature.size()) == tail &&
            named("::" + function.substr(0, colons) + "<") && named(function.substr(colons) + "(") &&
            named("double") && failure.node == nullptr) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << "raised: " << text;
    }
    return testing::AssertionFailure() << "nothing was raised";
}

} // namespace enginetest

#define EXPECT_RAISES(statement, function, header, message)                                                  \
    EXPECT_TRUE(enginetest::raises([&] { static_cast<void>(statement); }, function, header, message))
