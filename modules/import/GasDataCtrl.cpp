#include "GasDataCtrl.h"

#include "AsciiImportWizardStrategyGas.h"
#include "GasDataEditor.h"

// In every language the same: datasets bear it.
GasDataCtrl::GasDataCtrl() {
    m_moduleLabel = QStringLiteral("Gas data");
}

GasDataCtrl::~GasDataCtrl() = default;

VornEditor* GasDataCtrl::initEditor() {
    return new GasDataEditor(m_moduleLabel, model());
}

AsciiImportWizardStrategy* GasDataCtrl::getStrategy() {
    return new AsciiImportWizardStrategyGas;
}
