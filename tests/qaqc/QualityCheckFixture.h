#pragma once

#include "ExampleProject.h"
#include "ModuleObserver.h"
#include "SliderScientific.h"
#include "SourceRockQAQCEditor.h"
#include "TDatabase.h"
#include "TEditorMatrix.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "VKObject2Signal.h"
#include "VKPlotterPeakIndexation.h"
#include "VKRibbonModuleBar.h"
#include "VKViewer2DChroma.h"
#include "WorkbenchFixture.h"
#include "Workspace.h"
#include "gradereport/nearestchange.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QSlider>

#include <memory>

/// The whole workbench on the example project in a folder of its own, with the quality check open.
class QualityCheckTest : public WorkbenchFixture {
protected:
    using Editor = Vorn::SourceRockQAQC::SourceRockQAQCEditor;

    QualityCheckTest() {
        workbench->projects().create(path("lab.vornproj"), &ExampleProject::fill);
        workbench->qualityCheck().start();
        settle();
    }

    Editor* editor() { return dynamic_cast<Editor*>(workbench->qualityCheck().bar()); }
    CheckSession& session() { return *workbench->qualityCheck().session(); }
    VKListViewSignal& list() { return *workbench->qualityCheck().list(); }
    SliderScientific& sensitivity() { return slider(0); }
    SliderScientific& coelution() { return slider(1); }
    SliderScientific& height() { return slider(2); }
    gradereport::EngineSettings settings() {
        return {1.0 - sensitivity().value(), coelution().value(), height().value()};
    }

    const VKObject2Analysis* analysis(const QString& name) { return project().getAnalysis(name); }
    static QByteArray bytes(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }

    /// As a drag from the project tree ends; whether it was taken on entering.
    bool drop(const QMimeData& data) {
        QDragEnterEvent enter({4, 4}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(list().viewport(), &enter);
        QDropEvent event(QPointF(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list().viewport(), &event);
        return enter.isAccepted();
    }
    bool drop(const QList<const VKObject2*>& objects) {
        return drop(*std::unique_ptr<QMimeData>(VKObject2Decoder::encode(objects)));
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
    QStringList onScreen() {
        QStringList names;
        for (const TechPlot::VKViewer2D* const viewer : viewers()) {
            names.append(viewer->name());
        }
        return names;
    }
    /// The marked tops of the first viewer.
    const TechPlot::VKPlotterPeakIndexation& markers() {
        for (const TechPlot::TNode* const plotter : viewers().first()->plotters()) {
            if (const auto* const found = dynamic_cast<const TechPlot::VKPlotterPeakIndexation*>(plotter)) {
                return *found;
            }
        }
        throw std::runtime_error("the viewer has no markers");
    }

    TableView* openTable() {
        editor()->slotEventOccured(ModuleObserver::dataEditorAction);
        settle();
        return shownTable();
    }
    TableView* shownTable() { return dynamic_cast<TableView*>(workspace().currentPage()); }
    /// Name and grade of each row, as the table's reader sees them.
    QList<QStringList> gradesInTable() {
        QList<QStringList> grades;
        const VKDataModel& model = *shownTable()->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            grades.append({model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString(),
                           model.index(row, 0).data().toString()});
        }
        return grades;
    }

private:
    /// In the order of their making: sensitivity, coelution, height.
    SliderScientific& slider(int index) { return *editor()->findChildren<SliderScientific*>().at(index); }
};
