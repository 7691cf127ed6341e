#pragma once

#include "CheckDials.h"
#include "CheckedAnalysis.h"
#include "gradereport/gradekind.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

class QTreeWidgetItem;
class VKListViewSignal;
class VKObject2;

/// The grades of the analyses in the list of a quality check, row by row, with the settings of the moment.
/// Nothing is graded before it is asked for, and nothing twice.
class CheckGrades : public QObject {
    Q_OBJECT

public:
    /// Follows what is added to the list from now on. The list and the sliders outlive this object or end
    /// with it.
    CheckGrades(const VKListViewSignal& list, const CheckDials& dials, QObject* parent);
    ~CheckGrades() override;

    const CheckDials& dials() const { return m_dials; }

    /// As many as the list has rows that were added since.
    int count() const { return static_cast<int>(m_analyses.size()); }
    CheckedAnalysis& at(int row) { return *m_analyses[static_cast<std::size_t>(row)]; }
    /// The first of that name, null for an unknown one.
    CheckedAnalysis* named(const QString& name);

    /// Nothing for an analysis of which nothing is known any more.
    std::optional<gradereport::GradeKind> kind(int row);

    /// Reads all curves that have not been read, before their project is closed.
    void readAll();

signals:
    /// An analysis was added at the end.
    void added();

private:
    void add(const QTreeWidgetItem* item, const VKObject2* object);

    CheckDials m_dials;
    std::vector<std::unique_ptr<CheckedAnalysis>> m_analyses;
};
