#pragma once

#include "VKImportInterface.h"

/// Reads files that hold measured curves. What they deliver is the deriving class's.
class VKImportAnalysisInterface : public virtual VKImportInterface {
public:
    ~VKImportAnalysisInterface() override;
};
