#pragma once

#include <QObject>
#include <QVector>

namespace TechPlot {

class TEditor;

/// Knows the open editors, so that a plotter in no viewer has an owner: the newest of them. Interface
/// thread only, as everything that is drawn.
class TEditorRegistry {
public:
    static TEditorRegistry& returnMe();

    void open(TEditor* editor);
    void close(TEditor* editor);

    /// The parent of what no viewer holds; null when no editor is open.
    QObject* looseParts() const;

    /// Gives `editor` the loose plotters that were made after `serial`, whichever editor has them now:
    /// they were made for a viewer that has just entered it.
    void adopt(TEditor* editor, quint64 serial);

    quint64 nextSerial() { return ++m_lastSerial; }

private:
    TEditorRegistry() = default;

    QVector<TEditor*> m_open;
    quint64 m_lastSerial = 0;
};

} // namespace TechPlot
