#include "CheckedAnalysis.h"

#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2.h"
#include "core/exception.h"
#include "sourcerockqaqc/rawsignal.h"

#include <exception>

namespace {

using Values = std::vector<double>;

} // namespace

CheckedAnalysis::CheckedAnalysis(const VKObject2& object, double leastCoelution)
    : m_name(object.displayName()), m_database(object.db()), m_key(object.key()),
      m_leastCoelution(leastCoelution) {}

TechDB::TDatabase* CheckedAnalysis::database() const {
    return m_database.data();
}

bool CheckedAnalysis::read() {
    if (m_curve == nullptr && !m_gone) {
        try {
            if (m_database != nullptr) {
                m_curve = std::make_unique<TAnalysisData>(m_database->curve(m_key));
                m_origin = m_database->origin(m_key);
            }
        } catch (const VKError&) {
            m_curve = nullptr; // removed since: no failure, the module has its own copy
        }
        m_gone = m_curve == nullptr;
    }
    return !m_gone;
}

std::optional<AnalysisOrigin> CheckedAnalysis::origin() {
    read();
    return m_origin;
}

CheckedAnalysis::Signal CheckedAnalysis::signal() {
    return read() ? algo::sr_qaqc::rawSignal<double, Values>(m_curve->dataX(), m_curve->dataY(),
                                                             m_curve->dataSize())
                  : nullptr;
}

std::optional<int> CheckedAnalysis::quality(const gradereport::EngineSettings& settings) {
    const gradereport::Candidates* const found = candidates(settings.sensitivity);
    if (found == nullptr) {
        return std::nullopt;
    }
    return found->quality(settings.coelution, settings.heightCriteria);
}

const gradereport::Candidates* CheckedAnalysis::candidates(double sensitivity) {
    const auto learnt = m_learnt.find(sensitivity);
    if (learnt != m_learnt.end()) {
        return &learnt->second;
    }
    if (m_present.count(sensitivity) == 0) {
        m_present.clear();
        detect({sensitivity}, m_present);
    }
    return m_present.empty() ? nullptr : &m_present.begin()->second;
}

void CheckedAnalysis::learn(const std::vector<double>& sensitivities) {
    detect(sensitivities, m_learnt);
}

void CheckedAnalysis::detect(const std::vector<double>& sensitivities, Learnt& into) {
    std::optional<gradereport::Grading> part;
    try {
        for (const double sensitivity : sensitivities) {
            if (into.count(sensitivity) != 0) {
                continue;
            }
            if (!part) {
                const Signal raw = signal();
                if (raw == nullptr) {
                    return;
                }
                part = algo::sr_qaqc::usefulPart<double, Values>(raw);
            }
            algo::sr_qaqc::detectPeaks<double, Values>(*part, sensitivity);
            into.emplace(sensitivity, gradereport::Candidates(*part, m_leastCoelution));
        }
    } catch (const std::exception&) {
        m_gone = true; // the engine refuses it; whoever dropped it was told then
    }
}
