#include "Headless.h"

#include "CheckActions.h"
#include "CheckSession.h"
#include "ImportTour.h"
#include "ModuleObserver.h"
#include "PictureFolder.h"
#include "TDatabase.h"
#include "TEditorMatrix.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "VKRibbonModuleBar.h"
#include "Workbench.h"
#include "Workspace.h"

#include <QAction>
#include <QMap>

#include <exception>
#include <iostream>

namespace {

constexpr QSize pictureSize(1280, 800);
constexpr int plotsInPicture = 6; // all of them would make it higher than viewers of pictures like

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

QVector<const TechPlot::VKViewer2D*> plotsOn(const QWidget* page) {
    const auto* const matrix = dynamic_cast<const TechPlot::TEditorMatrix*>(page);
    return matrix == nullptr ? QVector<const TechPlot::VKViewer2D*>() : matrix->plots();
}

/// What the user would have read meanwhile.
void printMessages(const MessageLogModel& log) {
    for (int row = 0; row < log.rowCount(); ++row) {
        std::cout << log.index(row, MessageLogModel::TextColumn).data().toString().toStdString() << '\n';
    }
}

/// The flat ones alone in the list.
void showFilter(Workbench& workbench, const PictureFolder& pictures) {
    const CheckActions& actions = workbench.qualityCheck().actions();
    actions.onlyAction(gradereport::GradeKind::flat)->trigger();
    workbench.qualityCheck().list()->clearSelection();
    actions.nextAction()->trigger();
    PictureFolder::settle();
    pictures.write(QStringLiteral("filter.png"), workbench.window());
    actions.allAction()->trigger();
    workbench.qualityCheck().list()->selectAll();
    PictureFolder::settle();
}

void gradeAll(Workbench& workbench, const PictureFolder& pictures) {
    workbench.qualityCheck().send(allAnalyses(*workbench.projects().projectDatabase()));
    workbench.qualityCheck().bar()->slotEventOccured(ModuleObserver::dataEditorAction);
    Workspace& workspace = workbench.window().workspace();
    if (const auto* const table = dynamic_cast<const TableView*>(workspace.currentPage())) {
        printGrades(*table->model());
        PictureFolder::settle();
        pictures.write(QStringLiteral("table.png"), workbench.window());
    }
    workbench.qualityCheck().list()->selectAll();
    if (CheckSession* const session = workbench.qualityCheck().session()) {
        session->scan().finish();
    }
    PictureFolder::settle();
    pictures.write(QStringLiteral("window.png"), workbench.window());
    showFilter(workbench, pictures);
    const QVector<const TechPlot::VKViewer2D*> plots = plotsOn(workspace.currentPage());
    pictures.write(QStringLiteral("plots.png"), plots.mid(0, plotsInPicture));
    pictures.write(QStringLiteral("plots.pdf"), plots);
}

void runIn(Workbench& workbench, const QString& folder) {
    const PictureFolder pictures(folder);
    workbench.window().resize(pictureSize); // a platform without a screen makes up a small one
    ImportTour tour(workbench, pictures);
    tour.importRawFiles();
    gradeAll(workbench, pictures);
    tour.importTables();
    tour.dropFolder();
    printMessages(workbench.log());
}

} // namespace

int Headless::run(Workbench& workbench, const QString& folder) {
    try {
        runIn(workbench, folder);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
