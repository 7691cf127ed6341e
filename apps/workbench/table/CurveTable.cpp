#include "CurveTable.h"

#include <utility>

CurveTable::CurveTable(TAnalysisData curve) : m_curve(std::move(curve)) {}

int CurveTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_curve.dataSize();
}

int CurveTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CurveTable::data(const QModelIndex& index, int role) const {
    if (!isValueRole(role) || index.model() != this || index.row() >= rowCount()) {
        return {};
    }
    const auto point = static_cast<std::size_t>(index.row());
    return index.column() == TimeColumn ? m_curve.x()[point] : m_curve.y()[point];
}

QVariant CurveTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || !isValueRole(role)) {
        return {};
    }
    switch (section) {
    case TimeColumn:
        return tr("Time [s]", "Temps [s]");
    case SignalColumn:
        return tr("FID", "FID");
    default:
        return {};
    }
}
