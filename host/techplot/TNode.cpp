#include "TNode.h"

#include "TEditorRegistry.h"
#include "VKViewer2D.h"

namespace TechPlot {

TNode::TNode() : m_serial(TEditorRegistry::returnMe().nextSerial()) {
    becomeLoose();
}

TNode::~TNode() {
    if (m_viewer != nullptr)
        m_viewer->forget(this);
    leaveLooseParts();
}

void TNode::becomeLoose() {
    if (TLooseParts* parts = TEditorRegistry::returnMe().looseParts())
        parts->add(*this);
}

void TNode::leaveLooseParts() {
    if (m_loose != nullptr)
        m_loose->remove(*this);
}

void TNode::refreshDraw() {
    if (m_viewer != nullptr)
        m_viewer->plotterChanged();
}

} // namespace TechPlot
