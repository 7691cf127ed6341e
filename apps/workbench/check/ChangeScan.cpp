#include "ChangeScan.h"

#include "CheckGrades.h"
#include "SliderScientific.h"

#include <QTreeWidgetItem>

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int pauseMs = 200;
constexpr qint64 pieceMs = 4;

} // namespace

ChangeScan::ChangeScan(CheckGrades& grades, QObject* parent)
    : QObject(parent), m_grades(grades), m_columns{DialColumns(grades.dials().sensitivity()->scale()),
                                                   DialColumns(grades.dials().coelution()->scale()),
                                                   DialColumns(grades.dials().height()->scale())},
      m_coelutions(grades.dials().coelutions()), m_heights(grades.dials().heights()), m_counts(noCounts()) {
    for (const double shown : m_columns[Sensitivity].edges()) {
        m_sensitivities.push_back(CheckDials::sensitivityAt(shown));
    }
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ChangeScan::workAPiece);
    connect(&m_grades, &CheckGrades::added, this, &ChangeScan::beginAnew);
    connect(&m_grades, &CheckGrades::removed, this, &ChangeScan::beginAnew);
}

void ChangeScan::beginAnew() {
    m_begun = false;
    m_timer.start(pauseMs);
    if (m_current) {
        m_current = false;
        emit outdated();
    }
}

void ChangeScan::finish() {
    if (m_current) {
        return;
    }
    m_timer.stop();
    if (!m_begun) {
        begin();
    }
    while (!m_left.isEmpty()) {
        count(*m_left.takeLast());
    }
    publish();
}

void ChangeScan::workAPiece() {
    QElapsedTimer clock;
    clock.start();
    if (!m_begun) {
        begin();
    }
    while (!m_left.isEmpty()) {
        count(*m_left.takeLast());
        if (clock.elapsed() >= pieceMs) {
            m_timer.start(0);
            return;
        }
    }
    publish();
}

void ChangeScan::begin() {
    m_begun = true;
    m_left = m_grades.analyses();
    m_counting = noCounts();
}

void ChangeScan::publish() {
    m_counts = m_counting;
    m_begun = false;
    m_current = true;
    emit counted();
}

ChangeScan::Counts ChangeScan::noCounts() const {
    Counts counts;
    for (std::size_t dial = 0; dial < dialCount; ++dial) {
        counts[dial].assign(static_cast<std::size_t>(m_columns[dial].count()), 0);
    }
    return counts;
}

void ChangeScan::count(CheckedAnalysis& analysis) {
    const gradereport::EngineSettings settings = m_grades.dials().settings();
    const gradereport::Candidates* const present = analysis.candidates(settings.sensitivity);
    if (present == nullptr) {
        return;
    }
    countSteps(Coelution, present->changesByCoelution(m_coelutions, settings.heightCriteria));
    countSteps(Height, present->changesByHeight(settings.coelution, m_heights));
    countSensitivity(analysis);
}

/// An analysis whose grade goes there and back within a column changes in it once.
void ChangeScan::countSteps(Dial dial, const std::vector<std::size_t>& steps) {
    int before = -1;
    for (const std::size_t step : steps) {
        const int column = m_columns[dial].columnOfStepTo(step);
        if (column != before) {
            ++m_counting[dial][static_cast<std::size_t>(column)];
        }
        before = column;
    }
}

void ChangeScan::countSensitivity(CheckedAnalysis& analysis) {
    analysis.learn(m_sensitivities);
    gradereport::EngineSettings settings = m_grades.dials().settings();
    std::optional<int> before;
    for (std::size_t edge = 0; edge < m_sensitivities.size(); ++edge) {
        settings.sensitivity = m_sensitivities[edge];
        const std::optional<int> quality = analysis.quality(settings);
        if (edge > 0 && quality != before) {
            ++m_counting[Sensitivity][edge - 1];
        }
        before = quality;
    }
}
