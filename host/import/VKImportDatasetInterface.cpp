#include "VKImportDatasetInterface.h"

VKImportDatasetInterface::~VKImportDatasetInterface() = default;
