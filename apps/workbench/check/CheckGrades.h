#pragma once

#include "CheckDials.h"
#include "CheckedAnalysis.h"
#include "gradereport/gradekind.h"

#include <QObject>
#include <QVector>

#include <memory>
#include <optional>
#include <unordered_map>

class QTreeWidgetItem;
class VKListViewSignal;
class VKObject2;

/// The grades of the analyses in the list of a quality check, item by item, with the settings of the moment.
/// Nothing is graded before it is asked for, and nothing twice.
class CheckGrades : public QObject {
    Q_OBJECT

public:
    /// Follows what is added to the list from now on. The list and the sliders outlive this object or end
    /// with it.
    CheckGrades(const VKListViewSignal& list, const CheckDials& dials, QObject* parent);
    ~CheckGrades() override;

    const CheckDials& dials() const { return m_dials; }

    /// In the order of the list.
    QVector<CheckedAnalysis*> analyses() const;
    /// The first of that name, null for an unknown one.
    CheckedAnalysis* named(const QString& name) const;

    /// Nothing for an analysis of which nothing is known any more.
    std::optional<gradereport::GradeKind> kind(const QTreeWidgetItem* item);

    /// Reads all curves that have not been read, before their project is closed.
    void readAll();

signals:
    void added(QTreeWidgetItem* item);
    void removed();

private:
    void add(QTreeWidgetItem* item, const VKObject2* object);
    void forget(int first, int last);

    const VKListViewSignal& m_list;
    CheckDials m_dials;
    std::unordered_map<const QTreeWidgetItem*, std::unique_ptr<CheckedAnalysis>> m_analyses;
};
