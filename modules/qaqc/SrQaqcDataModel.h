#pragma once

#include "Engine.h"
#include "VKDataModelGeneric.h"
#include "VornExport.h"

#include <memory>

namespace Vorn::SourceRockQAQC {

/// The grades of all analyses as a table of one column, a row for each analysis.
///
/// Rows and headers are those of the moment of construction; the cells ask the engine at every read, so
/// a slider moved later shows in them. Their order is the manager's present one.
class VORN_EXPORT SrQaqcDataModel : public VKDataModelGeneric {
public:
    explicit SrQaqcDataModel(std::shared_ptr<const SourceRockQAQCMgr> manager);

    /// "good", "double", "flat" or nothing, whatever the column. The row is not tested.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::shared_ptr<const SourceRockQAQCMgr> m_manager;
};

} // namespace Vorn::SourceRockQAQC
