#pragma once

#include "core/exception.h"
#include "sourcerockqaqc/analysisdata.h"
#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/machinelearningwriter.h"
#include "sourcerockqaqc/srqaqcsettings.h"

#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace algo::sr_qaqc {

/// The engine of the quality check: one record per raw signal, graded with the present settings.
///
/// Records are added and updated, never removed. Their order is that of the signals' addresses, not of
/// arrival. One thread at a time; what the stages of the chain raise passes through.
template <class Scalar, class Values>
class SourceRockQAQCMgr {
public:
    using Settings = SourceRockQAQCSettings<Scalar, Values>;
    using Record = AnalysisData<Scalar, Values>;
    using SignalPointer = std::shared_ptr<const core::Signal1D<Scalar, Values>>;

    /// The settings are shared: whoever changes them calls `update` next.
    explicit SourceRockQAQCMgr(std::shared_ptr<const Settings> settings) : m_settings(std::move(settings)) {}
    virtual ~SourceRockQAQCMgr() = default;

    SourceRockQAQCMgr(const SourceRockQAQCMgr&) = delete;
    SourceRockQAQCMgr& operator=(const SourceRockQAQCMgr&) = delete;

    /// Grades `signal` and stores the record under it, with `name`. A signal that is there already is
    /// graded again, and its record renamed.
    std::shared_ptr<Record> addAnalysis(SignalPointer signal, const std::string& name) {
        auto record = analyse(signal);
        record->setName(name);
        const auto place = m_analyses.insert_or_assign(std::move(signal), record);
        if (place.second) {
            enterName(name, place.first);
        } else {
            enterAllNames();
        }
        return record;
    }

    /// Grades `signal`: its own record, updated, where there is one, else a new one that isn't stored.
    /// After a failure the record is what it was.
    std::shared_ptr<Record> analyse(SignalPointer signal) {
        auto grading = grade(signal, *m_settings);
        const auto found = m_analyses.find(signal);
        if (found == m_analyses.end()) {
            return std::make_shared<Record>(std::string(), std::move(signal), std::move(grading.chromatogram),
                                            std::move(grading.smoothed));
        }
        found->second->setSmoothed(std::move(grading.smoothed));
        found->second->setChromatogram(std::move(grading.chromatogram));
        return found->second;
    }

    /// Grades all analyses again with the present settings.
    void update() {
        for (auto& entry : m_analyses) {
            entry.second = analyse(entry.second->signal());
        }
    }

    /// The records that `filter` accepts.
    std::vector<std::shared_ptr<const Record>> getAnalyses(std::function<bool(const Record&)> filter) const {
        std::vector<std::shared_ptr<const Record>> passed;
        for (const auto& entry : m_analyses) {
            if (filter(*entry.second)) {
                passed.push_back(entry.second);
            }
        }
        return passed;
    }

    /// The quality code of the first analysis of that name. Raises for an unknown one.
    // NOLINTNEXTLINE(performance-unnecessary-value-param) the signature that callers know
    int getQuality(const std::string name) const {
        const auto found = m_firstOfName.find(name);
        if (found == m_firstOfName.end()) {
            ALGO_RAISE("can not find the analysis with name " + name);
        }
        return qualityCode(*found->second->second->chromatogram());
    }

    /// Writes all analyses for machine learning, to a fixed file and with no word about it: on Windows
    /// "c:/dataSR.txt", elsewhere "dataSR.txt" in the working directory.
    void exportData() const {
#ifdef _WIN32
        std::ofstream file("c:/dataSR.txt");
#else
        std::ofstream file("dataSR.txt");
#endif
        exportData(file);
    }

    /// The same to a stream.
    void exportData(std::ostream& stream) const {
        MachineLearningWriter<Scalar, Values> writer(stream);
        for (const auto& entry : m_analyses) {
            writer.row(*entry.first);
        }
        writer.beginLabels();
        for (const auto& entry : m_analyses) {
            writer.label(getQuality(entry.second->name()));
        }
        writer.finish();
    }

private:
    using Analyses = std::map<SignalPointer, std::shared_ptr<Record>>;
    using Place = typename Analyses::const_iterator;

    void enterName(const std::string& name, Place place) {
        const auto entered = m_firstOfName.emplace(name, place);
        if (!entered.second && m_analyses.key_comp()(place->first, entered.first->second->first)) {
            entered.first->second = place;
        }
    }

    /// After a record was renamed.
    void enterAllNames() {
        m_firstOfName.clear();
        for (auto place = m_analyses.cbegin(); place != m_analyses.cend(); ++place) {
            enterName(place->second->name(), place);
        }
    }

    std::shared_ptr<const Settings> m_settings;
    Analyses m_analyses;
    /// A list of a thousand names asks for each of them at every step of a slider.
    std::unordered_map<std::string, Place> m_firstOfName;
};

} // namespace algo::sr_qaqc
