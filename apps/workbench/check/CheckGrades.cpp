#include "CheckGrades.h"

#include "SliderScientific.h"
#include "VKListViewSignal.h"
#include "VKObject2.h"

#include <algorithm>

CheckGrades::CheckGrades(const VKListViewSignal& list, const CheckDials& dials, QObject* parent)
    : QObject(parent), m_dials(dials) {
    connect(&list, &VKListViewVKObject2::objectAdded, this, &CheckGrades::add);
}

CheckGrades::~CheckGrades() = default;

void CheckGrades::add(const QTreeWidgetItem*, const VKObject2* object) {
    m_analyses.push_back(std::make_unique<CheckedAnalysis>(*object, m_dials.coelution()->scale().minimum()));
    emit added();
}

CheckedAnalysis* CheckGrades::named(const QString& name) {
    const auto found = std::find_if(m_analyses.begin(), m_analyses.end(),
                                    [&name](const auto& each) { return each->name() == name; });
    return found == m_analyses.end() ? nullptr : found->get();
}

std::optional<gradereport::GradeKind> CheckGrades::kind(int row) {
    const std::optional<int> quality = at(row).quality(m_dials.settings());
    return quality ? std::make_optional(gradereport::kindOfQuality(*quality)) : std::nullopt;
}

void CheckGrades::readAll() {
    for (const auto& analysis : m_analyses) {
        analysis->read();
    }
}
