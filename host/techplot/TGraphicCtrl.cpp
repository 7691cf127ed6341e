#include "TGraphicCtrl.h"

#include "TEditor.h"
#include "WorkspaceInterface.h"

namespace TechPlot {

TGraphicCtrl::~TGraphicCtrl() {
    closeEditor(false);
}

void TGraphicCtrl::createEditor(TEditorLoader::TypeEditor type) {
    closeEditor(false);
    m_editor = TEditorLoader::load(type);
}

TEditor* TGraphicCtrl::getEditor() const {
    return m_editor;
}

void TGraphicCtrl::closeEditor(bool immediately) {
    TEditor* editor = m_editor.data();
    if (editor == nullptr)
        return;
    if (WorkspaceInterface* workspace = WorkspaceInterface::returnMe())
        workspace->closeEditor(editor);
    if (m_editor.isNull())
        return;
    m_editor.clear();
    if (immediately) {
        delete editor;
    } else {
        editor->release();
    }
}

void TGraphicCtrl::showEditor() {
    WorkspaceInterface* workspace = WorkspaceInterface::returnMe();
    if (workspace != nullptr && m_editor != nullptr)
        workspace->showEditor(m_editor);
}

void TGraphicCtrl::adjustViewerHV() {
    if (m_editor != nullptr)
        m_editor->adjustViewers();
}

} // namespace TechPlot
