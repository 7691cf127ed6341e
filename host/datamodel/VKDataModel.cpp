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

bool VKDataModel::isNumber(const QVariant& value) {
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}
