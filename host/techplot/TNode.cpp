#include "TNode.h"

#include "TEditorRegistry.h"
#include "VKViewer2D.h"

namespace TechPlot {

TNode::TNode() : m_serial(TEditorRegistry::returnMe().nextSerial()) {
    setParent(TEditorRegistry::returnMe().looseParts());
}

TNode::~TNode() {
    if (m_viewer != nullptr)
        m_viewer->forget(this);
}

void TNode::refreshDraw() {
    if (m_viewer != nullptr)
        m_viewer->plotterChanged();
}

} // namespace TechPlot
