#include "VKDataModel.h"

VKDataModel::VKDataModel(QObject* parent) : TDataModel(parent) {}

VKDataModel::~VKDataModel() = default;

void VKDataModel::setName(const QString& name, const QString& project) {
    m_name = name;
    m_project = project;
}

void VKDataModel::setProperties(const QList<TProperty>& properties) {
    m_properties = properties;
}

bool VKDataModel::isValueRole(int role) {
    return role == Qt::DisplayRole || role == Qt::EditRole || role == datasetRole;
}
