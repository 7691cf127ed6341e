#include "TrialGrade.h"

#include "ReadAhead.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "WindowLanguage.h"
#include "gradereport/enginetext.h"
#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/rawsignal.h"

#include <QCoreApplication>

#include <exception>
#include <vector>

namespace {

using Values = std::vector<double>;

void gradeOnce(const TAnalysisData& curve) {
    const auto signal = algo::sr_qaqc::rawSignal<double, Values>(curve.x().data(), curve.y().data(),
                                                                 static_cast<int>(curve.x().size()));
    algo::sr_qaqc::usefulPart<double, Values>(signal);
}

} // namespace

QString TrialGrade::refusal(const VKObject2Analysis& analysis, TechDB::ReadAhead& curves) {
    try {
        gradeOnce(curves.curve(analysis.key()));
    } catch (const VKError& error) {
        return error.text();
    } catch (const std::exception& error) {
        return QCoreApplication::translate(
                   "TrialGrade",
                   "The analysis <b>%1</b> can't be graded and was left out: check that its curve spans a "
                   "whole heating (%2).",
                   "L'analyse <b>%1</b> ne peut pas être évaluée et a été laissée de côté : vérifiez que sa "
                   "courbe couvre toute une chauffe (%2).")
            .arg(analysis.displayName().toHtmlEscaped(),
                 QString::fromStdString(gradereport::engineText(error.what(), windowLanguage()))
                     .toHtmlEscaped());
    }
    return {};
}
