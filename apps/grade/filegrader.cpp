#include "filegrader.h"

#include "core/exception.h"
#include "digest.h"
#include "gradereport/gradekind.h"
#include "rockeval/channels.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/rawsignal.h"

#include <exception>
#include <new>
#include <utility>

namespace grade {

namespace {

using Values = std::vector<double>;

Outcome graded(const std::string& path, const gradereport::EngineSettings& settings,
               gradereport::Curves curves, const DoneInputs& done) {
    const std::string bytes = rockeval::readBytes(path);
    std::string digest = sha256(bytes);
    if (done.contains(digest)) {
        return DoneBefore{};
    }
    const rockeval::RawSignal read = rockeval::readSignal(bytes, path);
    const rockeval::Channels channels = rockeval::toChannels(read.curve);
    if (channels.time.size() > maxPoints) {
        throw rockeval::ReadError(path, 0,
                                  "the curve has more than " + std::to_string(maxPoints) +
                                      " points, which no pyrolysis takes; check what the file is");
    }
    auto signal = algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                           static_cast<int>(channels.time.size()));
    const auto grading = algo::sr_qaqc::grade(signal, settings);

    GradedFile file{gradereport::describe(*signal, grading, settings, curves), std::move(signal)};
    file.record.file = path;
    file.record.name = gradereport::fileNameOf(path);
    file.record.sha256 = std::move(digest);
    for (const rockeval::Warning& warning : read.warnings) {
        file.record.warnings.push_back(rockeval::warningText(warning));
    }
    return file;
}

} // namespace

Outcome gradeFile(const std::string& path, const gradereport::EngineSettings& settings,
                  gradereport::Curves curves, const DoneInputs& done) {
    try {
        return graded(path, settings, curves, done);
    } catch (const rockeval::ReadError& error) {
        return gradereport::FailureRecord{path, error.what()};
    } catch (const std::bad_alloc&) {
        return gradereport::FailureRecord{path, path + ": there is not enough memory for this file."};
    } catch (const std::exception& error) {
        return gradereport::FailureRecord{
            path, path + ": the curve can't be graded, check that it spans a whole heating (" +
                      algo::core::messageOf(error.what()) + ")."};
    }
}

} // namespace grade
