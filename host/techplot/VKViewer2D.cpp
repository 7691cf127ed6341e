#include "VKViewer2D.h"

#include "TCursorOverlay.h"
#include "TData.h"
#include "TEditorRegistry.h"
#include "TPlotNavigator.h"
#include "TPlotWidget.h"
#include "VKPlotterSignal.h"
#include <QEvent>
#include <QLocale>
#include <qwt_plot_item.h>

namespace TechPlot {

VKViewer2D::VKViewer2D(QWidget* parent) : TViewer(parent) {}

VKViewer2D::~VKViewer2D() {
    for (TNode* plotter : qAsConst(m_plotters))
        plotter->m_viewer = nullptr;
}

void VKViewer2D::settingRead() {
    setGridVisible(TEditorRegistry::returnMe().settings().gridVisible);
}

void VKViewer2D::setGridVisible(bool visible) {
    m_grid = visible;
    if (m_plot != nullptr)
        m_plot->setGridVisible(visible);
    schedule();
}

void VKViewer2D::setRefreshEnabled(bool enabled) {
    m_refreshEnabled = enabled;
    if (enabled && m_stale)
        plotterChanged();
}

void VKViewer2D::insertPlotter(TNode* plotter) {
    if (plotter == nullptr || plotter->viewer() == this)
        return;
    if (plotter->viewer() != nullptr)
        plotter->viewer()->forget(plotter);
    plotter->leaveLooseParts();
    plotter->setParent(this);
    plotter->m_viewer = this;
    m_plotters.append(plotter);
    if (m_plot != nullptr)
        m_items.insert(plotter, m_plot->add(plotter->makeItem()));
    plotterChanged();
}

void VKViewer2D::extractPlotter(TNode* plotter, bool dispose) {
    if (plotter == nullptr || plotter->viewer() != this)
        return;
    forget(plotter);
    plotter->setParent(nullptr);
    plotter->becomeLoose();
    if (dispose && plotter->isDeletable())
        plotter->deleteLater();
}

void VKViewer2D::forget(TNode* plotter) {
    delete m_items.take(plotter);
    m_plotters.removeAll(plotter);
    plotter->m_viewer = nullptr;
    plotterChanged();
}

void VKViewer2D::plotterChanged() {
    if (m_refreshEnabled)
        m_fitted = false;
    schedule();
}

const TViewRange& VKViewer2D::range() const {
    fit();
    return m_range;
}

std::optional<QPair<double, double>> VKViewer2D::timeSpan() const {
    std::optional<QPair<double, double>> span;
    for (const TNode* plotter : m_plotters) {
        if (!plotter->hasPoints())
            continue;
        const QRectF bounds = plotter->bounds();
        const double first = span ? qMin(span->first, bounds.left()) : bounds.left();
        span = qMakePair(first, span ? qMax(span->second, bounds.right()) : bounds.right());
    }
    return span;
}

void VKViewer2D::setCommonSpan(const std::optional<QPair<double, double>>& span) {
    m_commonSpan = span;
    plotterChanged();
}

void VKViewer2D::fit() const {
    if (m_fitted)
        return;
    m_fitted = true;
    auto span = timeSpan();
    if (!span)
        return;
    double low = 0;
    double high = 0;
    bool first = true;
    for (const TNode* plotter : qAsConst(m_plotters)) {
        if (!plotter->hasPoints())
            continue;
        const QRectF bounds = plotter->bounds();
        low = first ? bounds.top() : qMin(low, bounds.top());
        high = first ? bounds.bottom() : qMax(high, bounds.bottom());
        first = false;
    }
    if (m_commonSpan)
        span = qMakePair(qMin(span->first, m_commonSpan->first), qMax(span->second, m_commonSpan->second));
    m_range.setHome(homeFor(QRectF(QPointF(span->first, low), QPointF(span->second, high))));
}

void VKViewer2D::schedule() {
    m_stale = true;
    if (m_plot != nullptr && m_refreshEnabled)
        m_plot->setRange(range().shown());
    if (m_scheduled || !m_refreshEnabled || m_plot == nullptr || !isVisible())
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(this, "redraw", Qt::QueuedConnection);
}

void VKViewer2D::redraw() {
    m_scheduled = false;
    if (m_plot == nullptr || !m_refreshEnabled || !isVisible())
        return;
    m_stale = false;
    m_plot->replot();
}

void VKViewer2D::adopt(const TViewRange& next) {
    const QRectF before = range().shown();
    const QRectF after = next.shown();
    if (after == before)
        return;
    m_range = next;
    clearReadOut();
    schedule();
    if (after.left() != before.left() || after.right() != before.right())
        emit timeShown(after.left(), after.right());
}

void VKViewer2D::showPart(const QRectF& part) {
    TViewRange next = range();
    next.show(part);
    adopt(next);
}

void VKViewer2D::zoomTime(double factor, double centre) {
    TViewRange next = range();
    next.zoomTime(factor, centre);
    adopt(next);
}

void VKViewer2D::zoomSignal(double factor, double centre) {
    TViewRange next = range();
    next.zoomSignal(factor, centre);
    adopt(next);
}

void VKViewer2D::move(double right, double up) {
    TViewRange next = range();
    next.move(right, up);
    adopt(next);
}

void VKViewer2D::resetRange() {
    TViewRange next = range();
    next.reset();
    adopt(next);
    emit timeReset();
}

void VKViewer2D::followTime(double from, double to) {
    fit();
    m_range.showTime(from, to);
    schedule();
}

void VKViewer2D::followReset() {
    fit();
    m_range.reset();
    schedule();
}

VKPlotterSignal* VKViewer2D::firstSignal() const {
    for (TNode* plotter : m_plotters) {
        if (auto* signal = dynamic_cast<VKPlotterSignal*>(plotter))
            return signal;
    }
    return nullptr;
}

void VKViewer2D::readOut(double time) {
    const VKPlotterSignal* signal = firstSignal();
    const int nearest = signal != nullptr ? signal->nearestSample(time) : -1;
    if (nearest < 0) {
        clearReadOut();
        return;
    }
    const QPointF sample(static_cast<double>(signal->rawData()->X()[nearest]),
                         static_cast<double>(signal->rawData()->Y()[nearest]));
    setReadout(readoutText(sample.x(), sample.y()));
    if (m_cursor != nullptr)
        m_cursor->showCross(m_plot->toCanvas(sample));
}

void VKViewer2D::clearReadOut() {
    setReadout({});
    if (m_cursor != nullptr)
        m_cursor->hideCross();
}

QString VKViewer2D::timeTitle() const {
    return tr("X", "X");
}

QString VKViewer2D::signalTitle() const {
    return tr("Y", "Y");
}

QString VKViewer2D::readoutText(double time, double signal) const {
    const QLocale locale;
    return QStringLiteral("%1 · %2").arg(locale.toString(time, 'g', 6), locale.toString(signal, 'g', 6));
}

QWidget* VKViewer2D::makeBody() {
    m_plot = new TPlotWidget(this);
    m_plot->setAxisTitles(timeTitle(), signalTitle());
    m_plot->setGridVisible(m_grid);
    for (TNode* plotter : qAsConst(m_plotters))
        m_items.insert(plotter, m_plot->add(plotter->makeItem()));
    m_cursor = new TCursorOverlay(m_plot->canvas());
    new TPlotNavigator(*this, *m_plot, *m_cursor);
    m_plot->setRange(range().shown());
    return m_plot;
}

std::unique_ptr<TPlotWidget> VKViewer2D::makePicture(const QPalette& palette) const {
    auto picture = std::make_unique<TPlotWidget>(nullptr);
    picture->setPalette(palette);
    picture->setAxisTitles(timeTitle(), signalTitle());
    picture->setHeading(name());
    picture->setGridVisible(m_grid);
    for (const TNode* plotter : m_plotters)
        picture->add(plotter->makeItem());
    picture->setRange(range().shown());
    picture->updateAxes();
    return picture;
}

void VKViewer2D::showEvent(QShowEvent* event) {
    TViewer::showEvent(event);
    if (m_stale)
        redraw();
}

void VKViewer2D::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && m_plot != nullptr) {
        m_plot->setAxisTitles(timeTitle(), signalTitle());
        schedule();
    }
    TViewer::changeEvent(event);
}

} // namespace TechPlot
