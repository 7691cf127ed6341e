#pragma once

#include "TPlotSettings.h"
#include <QVector>

namespace TechPlot {

class TEditor;
class TLooseParts;

/// Knows the open editors, so that a plotter in no viewer has an owner: the newest of them. Interface
/// thread only, as everything that is drawn.
class TEditorRegistry {
public:
    static TEditorRegistry& returnMe();

    void open(TEditor* editor);
    void close(TEditor* editor);

    /// The owner of what no viewer holds; null when no editor is open.
    TLooseParts* looseParts() const;

    /// Gives `editor` the loose plotters that were made after `serial`, whichever editor has them now:
    /// they were made for a viewer that has just entered it.
    void adopt(TEditor* editor, quint64 serial);

    quint64 nextSerial() { return ++m_lastSerial; }

    /// The user's settings as they were when the newest editor was opened, or when they were read again.
    TPlotSettings settings() const;
    void readSettingsAgain();

private:
    TEditorRegistry() = default;

    QVector<TEditor*> m_open;
    quint64 m_lastSerial = 0;
    TPlotSettings m_settings;
};

} // namespace TechPlot
