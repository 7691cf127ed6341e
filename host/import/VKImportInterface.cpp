#include "VKImportInterface.h"

VKImportInterface::~VKImportInterface() = default;
