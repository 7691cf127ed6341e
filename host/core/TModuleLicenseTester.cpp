#include "TModuleLicenseTester.h"

TModuleLicenseTester::~TModuleLicenseTester() = default;

bool TModuleLicenseTester::testLicense() const {
    return true;
}
