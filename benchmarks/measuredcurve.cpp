#include "measuredcurve.h"

#include "rockeval/channels.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/rawsignal.h"

#include <cmath>

namespace {

constexpr int pyrolysisRows = 1264;
constexpr int oxidationRows = 2300;

double bell(double t, double centre, double width) {
    const double distance = (t - centre) / width;
    return std::exp(-0.5 * distance * distance);
}

/// What leaves at once, a shoulder, the main peak, and an uneven baseline with its minimum at 182 s.
long hydrocarbons(int t) {
    const double early = 1900.0 * std::exp(-t / 55.0);
    const double dip = t < 182 ? 0.8 * (182 - t) : 0.5 * (t - 182);
    const double main = 5100.0 * bell(t, 720.0, 120.0) + 2600.0 * bell(t, 470.0, 110.0);
    return std::lround(early + dip + main + (t > 182 ? 3.0 * std::sin(t * 1.7) : 0.0));
}

std::string row(std::initializer_list<long> cells) {
    std::string line;
    for (const long cell : cells) {
        line += (line.empty() ? "" : "\t") + std::to_string(cell);
    }
    return line + "\r\n";
}

std::string rawFile() {
    std::string text = "\r\n[Curves pyro]\r\n";
    for (int t = 0; t < pyrolysisRows; ++t) {
        text += row({t, 199 + t / 3, hydrocarbons(t), t % 7, 2 + t / 5});
    }
    text += "\r\n[Curves oxi]\r\n";
    for (int t = 0; t < oxidationRows; ++t) {
        text += row({t, 299 + t / 4, t % 11, 480 + t / 3});
    }
    return text;
}

} // namespace

MeasuredCurve::MeasuredCurve() : m_bytes(rawFile()) {
    const auto channels = rockeval::toChannels(rockeval::readSignal(m_bytes, "measured.S00").curve);
    m_raw =
        algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(), pyrolysisRows);
    m_even = algo::sr_qaqc::grade(m_raw, algo::sr_qaqc::SourceRockQAQCSettings<double, Values>()).even;
}
