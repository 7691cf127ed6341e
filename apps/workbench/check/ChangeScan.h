#pragma once

#include "DialColumns.h"

#include <QObject>
#include <QTimer>
#include <QVector>

#include <array>
#include <vector>

class CheckGrades;
class CheckedAnalysis;

/// Counts, for each slider of a quality check, the analyses whose grade changes in each column of its way,
/// the other two sliders as they are. Along coelution and height every change is found, at the position where
/// it lies; along the sensitivity, where each value takes a detection, those that show at a column's edges.
///
/// Works in the pauses: begins when nothing has changed for a moment, in pieces of a few milliseconds. What
/// a curve's detections give is kept, so that it is found once.
class ChangeScan : public QObject {
    Q_OBJECT

public:
    enum Dial { Sensitivity, Coelution, Height };
    static constexpr std::size_t dialCount = 3;

    /// The grades outlive this object or end with it.
    ChangeScan(CheckGrades& grades, QObject* parent);

    const DialColumns& columns(Dial dial) const { return m_columns[dial]; }
    /// One number a column, as they were counted last.
    const std::vector<int>& counts(Dial dial) const { return m_counts[dial]; }
    /// Whether they are those of this moment.
    bool isCurrent() const { return m_current; }

    /// Counts what is left without a pause.
    void finish();

public slots:
    /// Settings or analyses have changed.
    void beginAnew();

signals:
    void counted();
    void outdated();

private:
    using Counts = std::array<std::vector<int>, dialCount>;

    void workAPiece();
    void begin();
    void publish();
    Counts noCounts() const;
    void count(CheckedAnalysis& analysis);
    void countSensitivity(CheckedAnalysis& analysis);
    void countSteps(Dial dial, const std::vector<std::size_t>& steps);

    CheckGrades& m_grades;
    std::array<DialColumns, dialCount> m_columns;
    std::vector<double> m_sensitivities;
    std::vector<double> m_coelutions;
    std::vector<double> m_heights;
    Counts m_counts;
    Counts m_counting;
    QVector<CheckedAnalysis*> m_left;
    QTimer m_timer;
    bool m_begun = false;
    bool m_current = true;
};
