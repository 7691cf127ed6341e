#pragma once

/// The gate that a module passes before it may run. This host is open: every module is licensed. The
/// operation stands here because modules are bound to it.
class TModuleLicenseTester {
public:
    TModuleLicenseTester() = default;
    virtual ~TModuleLicenseTester();
    TModuleLicenseTester(const TModuleLicenseTester&) = delete;
    TModuleLicenseTester& operator=(const TModuleLicenseTester&) = delete;

    virtual bool testLicense() const;
};
