#include "SrQaqcDataModel.h"

#include <utility>

namespace Vorn::SourceRockQAQC {

namespace {

bool every(const AnalysisData&) {
    return true;
}

} // namespace

SrQaqcDataModel::SrQaqcDataModel(std::shared_ptr<const SourceRockQAQCMgr> manager)
    : m_manager(std::move(manager)) {
    beginResetModel();
    const auto analyses = m_manager->getAnalyses(every);
    int row = 0;
    for (const auto& analysis : analyses) {
        setHeaderData(row++, Qt::Vertical, QString::fromStdString(analysis->name()), datasetRole);
    }
    setHeaderData(0, Qt::Horizontal, QString("Quality"), datasetRole);
    endResetModel();
    createEmpty(1, row);
}

QVariant SrQaqcDataModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != datasetRole) {
        return {};
    }
    const auto analyses = m_manager->getAnalyses(every);
    const auto& analysis = analyses[static_cast<std::size_t>(index.row())];
    switch (m_manager->getQuality(analysis->name())) {
    case 1:
        return QString("good");
    case 2:
        return QString("double");
    case 3:
        return QString("flat");
    default:
        return {};
    }
}

} // namespace Vorn::SourceRockQAQC
