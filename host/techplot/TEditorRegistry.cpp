#include "TEditorRegistry.h"

#include "TEditor.h"

namespace TechPlot {

TEditorRegistry& TEditorRegistry::returnMe() {
    static TEditorRegistry registry;
    return registry;
}

void TEditorRegistry::open(TEditor* editor) {
    m_open.append(editor);
    readSettingsAgain();
}

void TEditorRegistry::close(TEditor* editor) {
    m_open.removeAll(editor);
}

TPlotSettings TEditorRegistry::settings() const {
    return m_open.isEmpty() ? TPlotSettings::read() : m_settings;
}

void TEditorRegistry::readSettingsAgain() {
    m_settings = TPlotSettings::read();
}

TLooseParts* TEditorRegistry::looseParts() const {
    return m_open.isEmpty() ? nullptr : &m_open.last()->looseParts();
}

void TEditorRegistry::adopt(TEditor* editor, quint64 serial) {
    for (TEditor* other : qAsConst(m_open)) {
        if (other != editor)
            editor->looseParts().adopt(other->looseParts(), serial);
    }
}

} // namespace TechPlot
