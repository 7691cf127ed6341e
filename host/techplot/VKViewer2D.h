#pragma once

#include "TViewRange.h"
#include "TViewer.h"
#include <QHash>
#include <QVector>
#include <memory>
#include <optional>

class QwtPlotItem;

namespace TechPlot {

class TCursorOverlay;
class TNode;
class TPlotWidget;
class VKPlotterSignal;

/// A viewer that draws plotters over two axes, with zoom, move and a readout of the nearest sample. The
/// plot is built when the viewer is first shown; until then, and while it is hidden, a change costs no
/// drawing.
class VKViewer2D : public TViewer {
    Q_OBJECT

public:
    explicit VKViewer2D(QWidget* parent = nullptr);
    ~VKViewer2D() override;

    /// Takes the look from the user's settings (key "techplot/grid": whether grid lines are shown).
    void settingRead();
    void setGridVisible(bool visible);

    /// While false, changes of plotters don't reach the screen; they all do when it is true again.
    void setRefreshEnabled(bool enabled);

    /// Takes the plotter over, out of the viewer that had it. Null is ignored, and so is a plotter that is
    /// here already.
    void insertPlotter(TNode* plotter);

    /// Takes the plotter out. With `dispose`, a deletable one is disposed of later than the running event;
    /// otherwise it is a plotter without a viewer again (see TNode). One that isn't here is ignored.
    void extractPlotter(TNode* plotter, bool dispose);

    const QVector<TNode*>& plotters() const { return m_plotters; }

    /// The parts of the axes that are shown, and what the user's commands do to them. Each command that
    /// changes the shown time is told by `timeShown`. Arguments are as `TViewRange` has them.
    const TViewRange& range() const;
    void showPart(const QRectF& part);
    void zoomTime(double factor, double centre);
    void zoomSignal(double factor, double centre);
    void move(double right, double up);
    void resetRange();

    /// Sets the shown time without telling; for viewers whose time axes are linked.
    void followTime(double from, double to);
    void followReset();

    /// The time from the first to the last point of all plotters; nothing without points.
    std::optional<QPair<double, double>> timeSpan() const;

    /// Makes the home range reach at least over this span, for linked axes; nothing takes that back.
    void setCommonSpan(const std::optional<QPair<double, double>>& span);

    /// Reads out the sample nearest to `time` in title and plot, of the first signal plotter. Without one,
    /// or without points, nothing is read out.
    void readOut(double time);
    void clearReadOut();

    /// A plot of its own of what this viewer shows, in the colours of `palette`, for export.
    std::unique_ptr<TPlotWidget> makePicture(const QPalette& palette) const;

    /// The plot on screen; null until the viewer has been shown.
    TPlotWidget* plot() const { return m_plot; }

    /// Brings a change of a plotter to the screen, once for all changes of an event.
    void plotterChanged();

    /// Lets go of a plotter that is about to be destroyed.
    void forget(TNode* plotter);

signals:
    void timeShown(double from, double to);
    void timeReset();

protected:
    virtual QString timeTitle() const;
    virtual QString signalTitle() const;
    virtual QString readoutText(double time, double signal) const;
    /// The home range for points within `bounds`.
    virtual QRectF homeFor(const QRectF& bounds) const { return bounds; }

    QWidget* makeBody() override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void redraw();

private:
    void adopt(const TViewRange& next);
    VKPlotterSignal* firstSignal() const;
    void fit() const;
    void schedule();

    QVector<TNode*> m_plotters;
    QHash<TNode*, QwtPlotItem*> m_items;
    // Fitted to the plotters when it is next asked for, so that a viewer nobody looks at isn't.
    mutable TViewRange m_range;
    mutable bool m_fitted = true;
    std::optional<QPair<double, double>> m_commonSpan;
    TPlotWidget* m_plot = nullptr;
    TCursorOverlay* m_cursor = nullptr;
    bool m_grid = true;
    bool m_refreshEnabled = true;
    bool m_scheduled = false;
    bool m_stale = false;
};

} // namespace TechPlot
