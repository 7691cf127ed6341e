#include "TEditor.h"

#include "TEditorRegistry.h"

namespace TechPlot {

TEditor::TEditor(QWidget* parent) : QWidget(parent), m_looseParts(new QObject(this)) {
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
