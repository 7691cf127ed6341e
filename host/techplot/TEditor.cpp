#include "TEditor.h"

#include "TEditorRegistry.h"

namespace TechPlot {

TEditor::TEditor(QWidget* parent) : QWidget(parent) {
    TEditorRegistry::returnMe().open(this);
}

TEditor::~TEditor() {
    TEditorRegistry::returnMe().close(this);
}

void TEditor::release() {
    TEditorRegistry::returnMe().close(this);
    hide();
    deleteLater();
}

} // namespace TechPlot
