#pragma once

#include "VornCtrl.h"

/// Imports gas analyses from tables.
class VORN_EXPORT GasDataCtrl : public VornCtrl {
public:
    GasDataCtrl();
    ~GasDataCtrl() override;

protected:
    VornEditor* initEditor() override;
    AsciiImportWizardStrategy* getStrategy() override;
};
