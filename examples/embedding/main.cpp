// Grades the raw files that it is given: one line each, with the grade and the tops of the peaks.
#include <rockeval/channels.h>
#include <rockeval/readerror.h>
#include <rockeval/signalreader.h>
#include <sourcerockqaqc/grading.h>
#include <sourcerockqaqc/rawsignal.h>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

using Values = std::vector<double>;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;

namespace {

void gradeFile(const std::string& path) {
    // A row that can't be used is left out of the curve, and a warning names it.
    const rockeval::RawSignal file = rockeval::readSignalFile(path);
    for (const rockeval::Warning& warning : file.warnings) {
        std::cerr << path << ", line " << warning.line << ": " << warning.text << '\n';
    }

    // The engine grades the floats that a project stores, so that every program comes to the same grade.
    const rockeval::Channels channels = rockeval::toChannels(file.curve);
    const auto signal = algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                                 static_cast<int>(channels.time.size()));
    const auto grading = algo::sr_qaqc::grade(signal, Settings());

    // 1 good, 2 double, 3 flat; other numbers have no word.
    const int code = algo::sr_qaqc::qualityCode(*grading.chromatogram);
    std::cout << path << ": " << code << ' ' << algo::sr_qaqc::qualityText(code);
    for (const auto& peak : grading.chromatogram->peaks()) {
        std::cout << "; top of " << peak.top()->y << " at " << peak.top()->x << " s";
    }
    std::cout << '\n';
}

} // namespace

int main(int argc, char** argv) {
    int failures = 0;
    for (int i = 1; i < argc; ++i) {
        try {
            gradeFile(argv[i]);
        } catch (const rockeval::ReadError& error) { // it names the file and the line
            std::cerr << error.what() << '\n';
            ++failures;
        } catch (const std::exception& error) { // a curve that can't be graded
            std::cerr << argv[i] << ": " << error.what() << '\n';
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
