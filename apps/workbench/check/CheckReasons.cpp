#include "CheckReasons.h"

#include "CheckGrades.h"
#include "WindowLanguage.h"
#include "gradereport/gradereason.h"

QString CheckReasons::reason(const CheckGrades& grades, const QString& name) {
    CheckedAnalysis* const analysis = grades.named(name);
    const CheckedAnalysis::Signal signal = analysis == nullptr ? nullptr : analysis->signal();
    if (signal == nullptr) {
        return {};
    }
    const gradereport::EngineSettings settings = grades.dials().settings();
    const auto grading = algo::sr_qaqc::grade<double, std::vector<double>>(signal, settings);
    return QString::fromStdString(gradereport::gradeReason(grading, settings, windowLanguage()));
}
