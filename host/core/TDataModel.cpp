#include "TDataModel.h"

TDataModel::TDataModel(QObject* parent) : QAbstractItemModel(parent) {}

TDataModel::~TDataModel() = default;

QModelIndex TDataModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex TDataModel::parent(const QModelIndex&) const {
    return {};
}
