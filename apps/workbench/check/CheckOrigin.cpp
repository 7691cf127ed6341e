#include "CheckOrigin.h"

#include "CheckGrades.h"
#include "OriginFile.h"
#include "gradereport/describe.h"

namespace {

gradereport::OriginInput inputOf(CheckedAnalysis& analysis, const gradereport::EngineSettings& settings) {
    const std::optional<AnalysisOrigin> origin = analysis.origin();
    gradereport::OriginInput input = OriginFile::input(analysis.name(), origin ? &*origin : nullptr);
    input.quality = analysis.quality(settings);
    return input;
}

} // namespace

gradereport::ExportOrigin CheckOrigin::of(const CheckGrades& grades, const QStringList& names) {
    const gradereport::EngineSettings settings = grades.dials().settings();
    gradereport::ExportOrigin origin;
    origin.settings = gradereport::settingsOf(settings);
    const QVector<CheckedAnalysis*> all = names.isEmpty() ? grades.analyses() : QVector<CheckedAnalysis*>();
    for (CheckedAnalysis* const analysis : all) {
        origin.inputs.push_back(inputOf(*analysis, settings));
    }
    for (const QString& name : names) {
        CheckedAnalysis* const analysis = grades.named(name);
        origin.inputs.push_back(analysis == nullptr ? OriginFile::input(name, nullptr)
                                                    : inputOf(*analysis, settings));
    }
    return origin;
}
