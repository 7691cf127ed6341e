#include "CheckGrades.h"

#include "SliderScientific.h"
#include "VKListViewSignal.h"
#include "VKObject2.h"

#include <algorithm>

CheckGrades::CheckGrades(const VKListViewSignal& list, const CheckDials& dials, QObject* parent)
    : QObject(parent), m_list(list), m_dials(dials) {
    connect(&list, &VKListViewVKObject2::objectAdded, this, &CheckGrades::add);
    const QAbstractItemModel* const model = list.model();
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex& above, int first, int last) {
                if (!above.isValid()) {
                    forget(first, last);
                }
            });
    connect(model, &QAbstractItemModel::rowsRemoved, this, &CheckGrades::removed);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_analyses.clear(); });
    connect(model, &QAbstractItemModel::modelReset, this, &CheckGrades::removed);
}

CheckGrades::~CheckGrades() = default;

void CheckGrades::add(QTreeWidgetItem* item, const VKObject2* object) {
    m_analyses[item] = std::make_unique<CheckedAnalysis>(*object, m_dials.coelution()->scale().minimum());
    emit added(item);
}

void CheckGrades::forget(int first, int last) {
    for (int row = first; row <= last; ++row) {
        m_analyses.erase(m_list.topLevelItem(row));
    }
}

QVector<CheckedAnalysis*> CheckGrades::analyses() const {
    QVector<CheckedAnalysis*> all;
    for (int row = 0; row < m_list.topLevelItemCount(); ++row) {
        const auto found = m_analyses.find(m_list.topLevelItem(row));
        if (found != m_analyses.end()) {
            all.append(found->second.get());
        }
    }
    return all;
}

CheckedAnalysis* CheckGrades::named(const QString& name) const {
    const QVector<CheckedAnalysis*> all = analyses();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&name](const CheckedAnalysis* each) { return each->name() == name; });
    return found == all.end() ? nullptr : *found;
}

std::optional<gradereport::GradeKind> CheckGrades::kind(const QTreeWidgetItem* item) {
    const auto found = m_analyses.find(item);
    if (found == m_analyses.end()) {
        return std::nullopt;
    }
    const std::optional<int> quality = found->second->quality(m_dials.settings());
    return quality ? std::make_optional(gradereport::kindOfQuality(*quality)) : std::nullopt;
}

void CheckGrades::readAll() {
    for (const auto& analysis : m_analyses) {
        analysis.second->read();
    }
}
