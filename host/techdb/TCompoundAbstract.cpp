#include "TCompoundAbstract.h"

TCompoundAbstract::~TCompoundAbstract() = default;
