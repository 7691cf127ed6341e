#include "TextPairsCtrl.h"

#include "AsciiImportWizardStrategySR.h"
#include "ImportTextPairs.h"
#include "TextPairsEditor.h"

// In every language the same: datasets bear it.
TextPairsCtrl::TextPairsCtrl() {
    m_moduleLabel = QStringLiteral("Text pairs");
}

TextPairsCtrl::~TextPairsCtrl() = default;

VornEditor* TextPairsCtrl::initEditor() {
    return new TextPairsEditor(m_moduleLabel, model());
}

AsciiImportWizardStrategy* TextPairsCtrl::getStrategy() {
    return new AsciiImportWizardStrategySR;
}

void TextPairsCtrl::retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) {
    interfaces.append(new ImportTextPairs);
    VornCtrl::retrieveDLLImport(importCtrl, interfaces); // Excel tables too
}
