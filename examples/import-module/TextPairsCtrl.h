#pragma once

#include "VornCtrl.h"

/// Imports measurements of source rocks from text files of two columns.
class VORN_EXPORT TextPairsCtrl : public VornCtrl {
public:
    TextPairsCtrl();
    ~TextPairsCtrl() override;

protected:
    VornEditor* initEditor() override;
    AsciiImportWizardStrategy* getStrategy() override;
    void retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) override;
};
