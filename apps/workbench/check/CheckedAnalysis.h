#pragma once

#include "AnalysisOrigin.h"
#include "TAnalysisData.h"
#include "gradereport/candidates.h"

#include <QPointer>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class VKObject2;

namespace TechDB {
class TDatabase;
}

/// One analysis in the list of a quality check, graded as the module grades it. The module keeps its own
/// results to itself; the curve is the same, and so are the bits.
class CheckedAnalysis {
public:
    using Signal = std::shared_ptr<const gradereport::Grading::Signal>;

    /// An analysis, or its signal. Below `leastCoelution` no code is asked for.
    CheckedAnalysis(const VKObject2& object, double leastCoelution);

    /// As the list shows it: the name at the time of the drop.
    const QString& name() const { return m_name; }
    /// Null once the project is closed.
    TechDB::TDatabase* database() const;
    qint64 key() const { return m_key; }
    /// Where the curve was read from, as the project knows it; read once, with the curve.
    std::optional<AnalysisOrigin> origin();

    /// Reads the curve, if that has not been done. False if it can't be read any more, because the analysis
    /// or its project went before; then nothing can be said of the analysis.
    bool read();

    /// The curve as it is graded; null if it can't be read.
    Signal signal();

    /// The quality code; nothing if the curve can't be read.
    std::optional<int> quality(const gradereport::EngineSettings& settings);

    /// What the detection at this sensitivity leaves; null if the curve can't be read. Valid until another
    /// sensitivity is asked for; found once as long as it isn't.
    const gradereport::Candidates* candidates(double sensitivity);
    /// Detects at all of these that have not been learnt yet, and keeps what is found.
    void learn(const std::vector<double>& sensitivities);

private:
    QString m_name;
    QPointer<TechDB::TDatabase> m_database;
    qint64 m_key;
    double m_leastCoelution;
    std::unique_ptr<TAnalysisData> m_curve;
    std::optional<AnalysisOrigin> m_origin;
    bool m_gone = false;
    using Learnt = std::map<double, gradereport::Candidates>;

    void detect(const std::vector<double>& sensitivities, Learnt& into);

    Learnt m_learnt;
    Learnt m_present; // of one sensitivity, so that a slider that is moved for hours fills no memory
};
