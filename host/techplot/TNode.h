#pragma once

#include "TLooseParts.h"
#include "TStylePlotter.h"
#include <QObject>
#include <QRectF>
#include <QString>
#include <memory>

class QwtPlotItem;

namespace TechPlot {

class VKViewer2D;

/// Base of everything that a viewer draws: a plotter with its name, its style and its place in one viewer.
///
/// Ownership: a viewer owns the plotters inserted into it. A plotter that is in no viewer belongs to the
/// editor that was the newest open one when it was made, or, once the viewer made before it enters an
/// editor, to that editor; it is disposed of with the editor. A plotter made while no editor is open
/// belongs to its maker. Deleting a plotter takes it out of its viewer.
class TNode : public QObject {
public:
    TNode();
    ~TNode() override;

    void setNameDisplay(const QString& name) { m_name = name; }
    const QString& nameDisplay() const { return m_name; }

    /// A plotter that isn't deletable outlives its extraction, whatever the caller of `extractPlotter`
    /// asks for. True at first.
    void setDeletable(bool deletable) { m_deletable = deletable; }
    bool isDeletable() const { return m_deletable; }

    TStylePlotter* getStyle() { return &m_style; }
    const TStylePlotter* getStyle() const { return &m_style; }

    /// Brings data, bounds and style to the screen, at once with all else that changed in this event.
    void refreshDraw();

    /// The viewer that holds the plotter; null when none does.
    VKViewer2D* viewer() const { return m_viewer; }

    /// The rectangle around all points that can be drawn; null (0 by 0 at the origin) when there is none.
    virtual QRectF bounds() const = 0;
    virtual bool hasPoints() const = 0;

    /// What draws the plotter in one plot. The item reads the plotter when it is drawn, and must not
    /// outlive it.
    virtual std::unique_ptr<QwtPlotItem> makeItem() const = 0;

    /// The place in the order in which plotters and viewers were made.
    quint64 serial() const { return m_serial; }

private:
    friend class TLooseParts;
    friend class VKViewer2D;

    void becomeLoose();
    void leaveLooseParts();

    QString m_name;
    TStylePlotter m_style;
    VKViewer2D* m_viewer = nullptr;
    TLooseParts* m_loose = nullptr;
    TLooseParts::Place m_place;
    quint64 m_serial;
    bool m_deletable = true;
};

} // namespace TechPlot
