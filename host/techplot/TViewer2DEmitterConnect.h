#pragma once

#include <QObject>

class QWidget;

namespace TechPlot {

/// Speaks for a viewer: what connects to it needs to know nothing of the viewer.
class TViewer2DEmitterConnect : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// The user asked for the viewer to be closed. Emitted once for each time, and not again while a slot
    /// runs; a slot may extract, close and dispose of everything, the viewer included.
    void emitClosed(QWidget* viewer);
};

} // namespace TechPlot
