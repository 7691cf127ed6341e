#include "CheckReasons.h"

#include "CheckGrades.h"
#include "gradereport/gradereason.h"

namespace {

gradereport::Language language() {
    return CheckReasons::tr("English", "French") == QLatin1String("French") ? gradereport::Language::french
                                                                            : gradereport::Language::english;
}

} // namespace

QString CheckReasons::reason(const CheckGrades& grades, const QString& name) {
    CheckedAnalysis* const analysis = grades.named(name);
    const CheckedAnalysis::Signal signal = analysis == nullptr ? nullptr : analysis->signal();
    if (signal == nullptr) {
        return {};
    }
    const gradereport::EngineSettings settings = grades.dials().settings();
    const auto grading = algo::sr_qaqc::grade<double, std::vector<double>>(signal, settings);
    return QString::fromStdString(gradereport::gradeReason(grading, settings, language()));
}
