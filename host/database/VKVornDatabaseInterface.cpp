#include "VKVornDatabaseInterface.h"

VKVornDatabaseInterface::~VKVornDatabaseInterface() = default;
