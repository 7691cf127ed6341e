#pragma once

#include "TData.h"
#include "TEditorMatrix.h"
#include "TGraphicCtrl.h"
#include "TPlotWidget.h"
#include "VKPlotterPeakIndexation.h"
#include "VKPlotterSignal.h"
#include "VKViewer2DChroma.h"
#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

// Settings of its own for each test, and short ways to make what a plot area is made of.
class PlotTest : public testing::Test {
protected:
    PlotTest() {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    }

    static float* copy(const std::vector<float>& values) {
        auto* array = new float[values.size()];
        std::copy(values.begin(), values.end(), array);
        return array;
    }

    static TechPlot::TData* data(const std::vector<float>& x, const std::vector<float>& y) {
        return new TechPlot::TData(static_cast<int>(x.size()), copy(x), copy(y));
    }

    static TechPlot::VKPlotterSignal* signal(const std::vector<float>& x, const std::vector<float>& y) {
        auto* plotter = new TechPlot::VKPlotterSignal;
        plotter->setRawData(data(x, y));
        return plotter;
    }

    static TechPlot::VKPlotterPeakIndexation* marks(const std::vector<float>& x, const std::vector<float>& y,
                                                    const std::vector<float>& values) {
        TechPlot::TData* points = data(x, y);
        points->setColor(copy(values));
        points->setText(new QString[x.size()]);
        return new TechPlot::VKPlotterPeakIndexation(points);
    }

    static TechPlot::TEditorMatrix* openMatrix(TechPlot::TGraphicCtrl& control) {
        control.createEditor(TechPlot::TEditorLoader::Matrix);
        return dynamic_cast<TechPlot::TEditorMatrix*>(control.getEditor());
    }

    static void add(TechPlot::TEditorMatrix* matrix, TechPlot::TViewer* viewer) {
        matrix->insertRow(viewer, matrix->viewers().size());
        matrix->viewerAdded(viewer);
    }

    static void show(QWidget& widget, const QSize& size = QSize(800, 600)) {
        widget.resize(size);
        widget.show();
        settle();
    }

    // What the event loop does between two events of the user.
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTemporaryDir folder;
};
