#include "TEditorRegistry.h"

#include "TEditor.h"
#include "TNode.h"

namespace TechPlot {

TEditorRegistry& TEditorRegistry::returnMe() {
    static TEditorRegistry registry;
    return registry;
}

void TEditorRegistry::open(TEditor* editor) {
    m_open.append(editor);
}

void TEditorRegistry::close(TEditor* editor) {
    m_open.removeAll(editor);
}

QObject* TEditorRegistry::looseParts() const {
    return m_open.isEmpty() ? nullptr : m_open.last()->looseParts();
}

void TEditorRegistry::adopt(TEditor* editor, quint64 serial) {
    for (const TEditor* other : qAsConst(m_open)) {
        if (other == editor)
            continue;
        const QObjectList parts = other->looseParts()->children();
        for (QObject* part : parts) {
            const auto* node = static_cast<TNode*>(part);
            if (node->serial() > serial)
                part->setParent(editor->looseParts());
        }
    }
}

} // namespace TechPlot
