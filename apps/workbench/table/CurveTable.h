#pragma once

#include "TAnalysisData.h"
#include "VKDataModel.h"

/// A curve as a table that can't be edited: a row for each point, its time and its signal as the floats that
/// are stored. The points are held once, so that a long curve takes no more than it must.
class CurveTable : public VKDataModel {
    Q_OBJECT

public:
    explicit CurveTable(TAnalysisData curve);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    enum Column { TimeColumn, SignalColumn, ColumnCount };

    TAnalysisData m_curve;
};
