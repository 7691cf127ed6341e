#include "VKImportAnalysisInterface.h"

VKImportAnalysisInterface::~VKImportAnalysisInterface() = default;
