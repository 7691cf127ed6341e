#pragma once

#include "VKImportInterface.h"

class QAbstractItemModel;

/// Reads files that hold tables.
class VKImportDatasetInterface : public virtual VKImportInterface {
public:
    ~VKImportDatasetInterface() override;

    /// The table of the source, owned by this object until the next source; null if there is none. Throws
    /// VKError, with the cause in one sentence, for a file that can't be read.
    virtual QAbstractItemModel* importedModel() = 0;
};
