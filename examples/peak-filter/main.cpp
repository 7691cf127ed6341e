// Grades raw files twice: as they are, and without the peaks that are small beside the highest.
//     example-peak-filter SHARE FILE...
#include "minorpeaks.h"
#include "rockeval/channels.h"
#include "rockeval/number.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/rawsignal.h"

#include <exception>
#include <iostream>
#include <string>

namespace {

Grading gradingOf(const std::string& path, const Settings& settings) {
    const rockeval::Channels channels = rockeval::toChannels(rockeval::readSignalFile(path).curve);
    const auto raw = algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                              static_cast<int>(channels.time.size()));
    return algo::sr_qaqc::grade<double, Values>(raw, settings);
}

void show(const std::string& path, double share) {
    const Settings settings;
    const Grading grading = gradingOf(path, settings);
    const auto filtered = withoutMinorPeaks(grading, settings, share);
    std::cout << path << ": quality " << algo::sr_qaqc::qualityCode(*grading.chromatogram) << ", "
              << algo::sr_qaqc::qualityCode(*filtered) << " without minor peaks\n";
}

} // namespace

int main(int count, char** words) {
    const auto share = count > 2 ? rockeval::parseNumber(words[1]) : std::nullopt;
    if (!share) {
        std::cerr << "Usage: example-peak-filter SHARE FILE..., with a share from 0 to 1, for instance 0.4\n";
        return 2;
    }
    int status = 0;
    for (int place = 2; place < count; ++place) {
        try {
            show(words[place], *share);
        } catch (const std::exception& error) {
            std::cerr << error.what() << '\n';
            status = 1;
        }
    }
    return status;
}
