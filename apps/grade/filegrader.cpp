#include "filegrader.h"

#include "digest.h"
#include "gradereport/enginetext.h"
#include "gradereport/gradekind.h"
#include "rockeval/channels.h"
#include "rockeval/french.h"
#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/rawsignal.h"

#include <exception>
#include <new>
#include <string_view>
#include <utility>

namespace grade {

namespace {

using Values = std::vector<double>;

using gradereport::Language;
using gradereport::said;

std::string remark(std::string_view english, Language language) {
    return language == Language::french ? rockeval::inFrench(english) : std::string(english);
}

std::string failureText(const std::string& path, const rockeval::ReadError& error, Language language) {
    if (language == Language::english) {
        return error.what();
    }
    const std::string place = error.line() == 0 ? path : path + ", ligne " + std::to_string(error.line());
    return place + " : " + remark(error.problem(), language) + ".";
}

std::string tooManyPoints(Language language) {
    return said(language, "the curve has more than ", "la courbe a plus de ") + std::to_string(maxPoints) +
           said(language, " points, which no pyrolysis takes; check what the file is",
                " points, plus qu'aucune pyrolyse ; vérifiez ce qu'est ce fichier");
}

Outcome graded(const std::string& path, const gradereport::EngineSettings& settings,
               gradereport::Curves curves, const DoneInputs& done, Language language) {
    const std::string bytes = rockeval::readBytes(path);
    std::string digest = sha256(bytes);
    if (done.contains(digest)) {
        return DoneBefore{};
    }
    const rockeval::RawSignal read = rockeval::readSignal(bytes, path);
    const rockeval::Channels channels = rockeval::toChannels(read.curve);
    if (channels.time.size() > maxPoints) {
        throw rockeval::ReadError(path, 0, tooManyPoints(language));
    }
    auto signal = algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                           static_cast<int>(channels.time.size()));
    const auto grading = algo::sr_qaqc::grade(signal, settings);

    GradedFile file{gradereport::describe(*signal, grading, settings, curves, language), std::move(signal)};
    file.record.file = path;
    file.record.name = gradereport::fileNameOf(path);
    file.record.sha256 = std::move(digest);
    for (const rockeval::Warning& warning : read.warnings) {
        file.record.warnings.push_back(remark(rockeval::warningText(warning), language));
    }
    return file;
}

} // namespace

Outcome gradeFile(const std::string& path, const gradereport::EngineSettings& settings,
                  gradereport::Curves curves, const DoneInputs& done, Language language) {
    try {
        return graded(path, settings, curves, done, language);
    } catch (const rockeval::ReadError& error) {
        return gradereport::FailureRecord{path, failureText(path, error, language)};
    } catch (const std::bad_alloc&) {
        return gradereport::FailureRecord{
            path, path + said(language, ": there is not enough memory for this file; grade fewer at once.",
                              " : la mémoire ne suffit pas pour ce fichier ; évaluez-en moins à la fois.")};
    } catch (const std::exception& error) {
        return gradereport::FailureRecord{
            path,
            path +
                said(language, ": the curve can't be graded, check that it spans a whole heating (",
                     " : la courbe ne peut pas être évaluée, vérifiez qu'elle couvre toute une chauffe (") +
                gradereport::engineText(error.what(), language) + ")."};
    }
}

} // namespace grade
