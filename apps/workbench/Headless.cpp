#include "Headless.h"

#include "ModuleObserver.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "TEditorMatrix.h"
#include "TPlotExport.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKError.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "VKRibbonModuleBar.h"
#include "Workbench.h"
#include "Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>

#include <exception>
#include <iostream>

namespace {

constexpr QSize pictureSize(1280, 800);
constexpr int plotsInPicture = 6; // all of them would make it higher than viewers of pictures like

void settle() {
    for (int pass = 0; pass < 3; ++pass) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

QList<const VKObject2*> allAnalyses(const TechDB::TDatabase& project) {
    QList<const VKObject2*> objects;
    const QVector<TechDB::AnalysisInfo> analyses = project.analyses();
    for (const TechDB::AnalysisInfo& info : analyses) {
        objects.append(project.analysisByKey(info.key));
    }
    return objects;
}

/// As the results table has them, in the order of the names.
void printGrades(const QAbstractItemModel& table) {
    QMap<QString, QString> grades;
    int widest = 0;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString name = table.headerData(row, Qt::Vertical, VKDataModel::datasetRole).toString();
        grades.insert(name, table.data(table.index(row, 0), VKDataModel::datasetRole).toString());
        widest = qMax(widest, name.size());
    }
    for (auto grade = grades.cbegin(); grade != grades.cend(); ++grade) {
        const QString word = grade.value().isEmpty() ? QStringLiteral("-") : grade.value();
        std::cout << (grade.key().leftJustified(widest + 2) + word).toStdString() << '\n';
    }
}

void writePicture(const QString& path, QWidget& widget) {
    if (!widget.grab().save(path)) {
        throw VKError(
            QStringLiteral("The picture <b>%1</b> can't be written: check that its folder may be written.")
                .arg(path.toHtmlEscaped()));
    }
    std::cout << "Written: " << path.toStdString() << '\n';
}

void writePlots(const QString& path, const QVector<const TechPlot::VKViewer2D*>& plots) {
    TechPlot::TPlotExport::write(plots, path);
    std::cout << "Written: " << path.toStdString() << '\n';
}

QVector<const TechPlot::VKViewer2D*> plotsOn(const QWidget* page) {
    const auto* const matrix = dynamic_cast<const TechPlot::TEditorMatrix*>(page);
    return matrix == nullptr ? QVector<const TechPlot::VKViewer2D*>() : matrix->plots();
}

void runIn(Workbench& workbench, const QDir& folder) {
    workbench.window().resize(pictureSize); // a platform without a screen makes up a small one
    workbench.qualityCheck().send(allAnalyses(*workbench.projects().projectDatabase()));
    workbench.qualityCheck().bar()->slotEventOccured(ModuleObserver::dataEditorAction);
    Workspace& workspace = workbench.window().workspace();
    if (const auto* const table = dynamic_cast<const TableView*>(workspace.currentPage())) {
        printGrades(*table->model());
        settle();
        writePicture(folder.filePath(QStringLiteral("table.png")), workbench.window());
    }
    workbench.qualityCheck().list()->selectAll();
    settle();
    writePicture(folder.filePath(QStringLiteral("window.png")), workbench.window());
    const QVector<const TechPlot::VKViewer2D*> plots = plotsOn(workspace.currentPage());
    writePlots(folder.filePath(QStringLiteral("plots.png")), plots.mid(0, plotsInPicture));
    writePlots(folder.filePath(QStringLiteral("plots.pdf")), plots);
}

} // namespace

int Headless::run(Workbench& workbench, const QString& folder) {
    try {
        QDir().mkpath(folder);
        runIn(workbench, QDir(folder));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
