#pragma once

#include "ExampleProject.h"
#include "SliderScientific.h"
#include "SourceRockQAQCEditor.h"
#include "TDatabase.h"
#include "TEditorMatrix.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "VKObject2Signal.h"
#include "VKRibbonModuleBar.h"
#include "VKViewer2DChroma.h"
#include "WorkbenchFixture.h"
#include "Workspace.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSlider>

#include <memory>

/// The whole workbench on the example project in a folder of its own, with the quality check open.
class QualityCheckTest : public WorkbenchFixture {
protected:
    using Editor = Vorn::SourceRockQAQC::SourceRockQAQCEditor;

    QualityCheckTest() {
        workbench->projects().create(projectPath(), &ExampleProject::fill);
        workbench->qualityCheck().start();
        settle();
    }

    QString projectPath() const { return path("lab.vornproj"); }
    Editor* editor() { return dynamic_cast<Editor*>(workbench->qualityCheck().bar()); }
    VKListViewSignal& list() { return *workbench->qualityCheck().list(); }
    SliderScientific& sensitivity() { return slider(0); }
    SliderScientific& coelution() { return slider(1); }
    SliderScientific& height() { return slider(2); }

    const VKObject2Analysis* analysis(const QString& name) { return project().getAnalysis(name); }

    /// As a drag from the project tree ends.
    void drop(const QList<const VKObject2*>& objects) {
        const std::unique_ptr<QMimeData> data(VKObject2Decoder::encode(objects));
        QDragEnterEvent enter({4, 4}, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list().viewport(), &enter);
        QDropEvent event(QPointF(4, 4), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list().viewport(), &event);
    }
    void dropNamed(const QStringList& names) {
        QList<const VKObject2*> objects;
        for (const QString& name : names) {
            objects.append(analysis(name));
        }
        drop(objects);
    }

    /// As a hand on the slider.
    static void move(SliderScientific& slider, int position) {
        slider.findChild<QSlider*>()->setValue(position);
    }
    static int position(SliderScientific& slider) { return slider.findChild<QSlider*>()->value(); }
    static int lastPosition(SliderScientific& slider) { return slider.findChild<QSlider*>()->maximum(); }

    void select(const QStringList& names) {
        list().clearSelection();
        for (const QString& name : names) {
            for (QTreeWidgetItem* const item : list().findItems(name, Qt::MatchExactly)) {
                item->setSelected(true);
            }
        }
        settle();
    }

    QColor listColour(int row) { return list().topLevelItem(row)->background(0).color(); }

    /// The viewers on screen from top to bottom; none if no plot area is in front.
    QVector<const TechPlot::VKViewer2D*> viewers() {
        auto* const matrix = dynamic_cast<TechPlot::TEditorMatrix*>(workspace().currentPage());
        return matrix == nullptr ? QVector<const TechPlot::VKViewer2D*>() : matrix->plots();
    }

private:
    /// In the order of their making: sensitivity, coelution, height.
    SliderScientific& slider(int index) { return *editor()->findChildren<SliderScientific*>().at(index); }
};
