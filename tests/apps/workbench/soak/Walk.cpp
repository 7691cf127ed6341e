#include "Walk.h"

#include "ExampleProject.h"
#include "ModuleObserver.h"
#include "MouseDrop.h"
#include "ProjectTree.h"
#include "SliderScientific.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "VKRibbon.h"
#include "VornEditor.h"
#include "Workspace.h"

#include <QAction>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSlider>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace {

constexpr ImportModules::Kind kinds[] = {ImportModules::Kind::SourceRock, ImportModules::Kind::Gas,
                                         ImportModules::Kind::Custom};

/// An action that is greyed out can't be reached.
void trigger(QAction& action) {
    if (action.isEnabled()) {
        action.trigger();
    }
}

void settle() {
    for (int pass = 0; pass < 3; ++pass) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

QLineEdit& filterOf(Workbench& workbench) {
    return *workbench.window().tree().findChild<QLineEdit*>();
}

} // namespace

// Another order or weight makes another walk of the same seed.
const Walk::Act Walk::acts[] = {
    {"open a project", 1, [](Walk& walk) { walk.openProject(); }},
    {"open the example", 1, [](Walk& walk) { walk.m_workbench.projectCommands().openExample(); }},
    {"close the project", 1, [](Walk& walk) { walk.closeProject(); }},
    {"import files", 2, [](Walk& w) { w.m_workbench.imports().importFiles(w.someKind(), w.someFiles()); }},
    {"list files", 1, [](Walk& walk) { walk.listFiles(); }},
    {"start a module", 1, [](Walk& walk) { walk.m_workbench.imports().start(walk.someKind()); }},
    {"close a module", 1, [](Walk& walk) { walk.m_workbench.window().ribbon().closeCurrentBar(); }},
    {"open the quality check", 1, [](Walk& walk) { walk.m_workbench.qualityCheck().start(); }},
    {"send analyses", 2, [](Walk& walk) { walk.send(); }},
    {"drag from the tree", 1, [](Walk& walk) { walk.dragFromTree(); }},
    {"select in the check", 2, [](Walk& walk) { walk.selectInCheck(); }},
    {"move a slider", 2, [](Walk& walk) { walk.moveSlider(); }},
    {"open the results", 1, [](Walk& walk) { walk.openResults(); }},
    {"filter the tree", 1, [](Walk& walk) { filterOf(walk.m_workbench).setText(walk.m_chance.text()); }},
    {"select in the tree", 2, [](Walk& walk) { walk.selectInTree(); }},
    {"open branches", 1, [](Walk& walk) { walk.openBranches(); }},
    {"rename in the tree", 1, [](Walk& walk) { walk.renameInTree(); }},
    {"run a command of the tree", 1, [](Walk& walk) { walk.runTreeCommand(); }},
    {"run an entry of a menu", 2, [](Walk& walk) { walk.runMenuEntry(); }},
    {"close a page", 1, [](Walk& walk) { walk.closePage(); }},
    {"speak another language", 1, [](Walk& walk) { walk.speak(); }},
    {"put on another look", 1, [](Walk& walk) { walk.dress(); }},
    {"resize", 1,
     [](Walk& w) { w.m_workbench.window().resize(w.m_chance.below(1600), w.m_chance.below(1200)); }},
    {"fiddle", 4, [](Walk& walk) { walk.fiddle(); }},
};

Walk::Walk(Workbench& workbench, const Places& places, unsigned seed)
    : m_workbench(workbench), m_places(places), m_chance(seed), m_hands(m_chance),
      m_answers(m_chance, places.output.path()) {}

const Walk::Act& Walk::someAct() {
    int weights = 0;
    for (const Act& act : acts) {
        weights += act.weight;
    }
    const Act* act = std::begin(acts);
    for (int place = m_chance.below(weights); place >= act->weight; ++act) {
        place -= act->weight;
    }
    return *act;
}

const char* Walk::step() {
    const Act& act = someAct();
    if (qEnvironmentVariableIsSet("VORN_SOAK_TRAIL")) {
        qInfo("%s", act.name);
    }
    try {
        act.run(*this);
    } catch (const VKError& error) {
        VKError::dispatchError(error); // as the command that stands for this call does
    }
    settle();
    if (!m_workbench.window().isVisible()) {
        m_workbench.window().show(); // it was closed, which another start would follow
    }
    return act.name;
}

void Walk::tidyUp(Workbench& workbench) {
    for (VKRibbonBar* const bar : workbench.window().ribbon().bars()) {
        bar->closeRequested();
        settle();
    }
    workbench.projects().close();
    workbench.window().workspace().closePages(); // such as the guide, when no project was open
    filterOf(workbench).clear();
    workbench.language().choose(LanguageSwitch::Language::English);
    workbench.look().choose(LookSwitch::Scheme::Light);
    workbench.window().resize(1000, 700);
    settle();
    workbench.log().clear();
}

ImportModules::Kind Walk::someKind() {
    return kinds[m_chance.below(3)];
}

QTreeView& Walk::tree() {
    return *m_workbench.window().tree().findChild<QTreeView*>();
}

QStringList Walk::someFiles() {
    const QDir& files = m_places.files;
    const QStringList names = files.entryList(QDir::AllEntries | QDir::NoDot, QDir::Name);
    QStringList paths{files.filePath(m_chance.oneOf(names))};
    while (!m_chance.oneIn(3)) {
        paths.append(files.filePath(m_chance.oneOf(names)));
    }
    if (m_chance.oneIn(10)) {
        paths.append(files.filePath(QStringLiteral("nowhere.S00")));
    }
    return paths;
}

void Walk::openProject() {
    const QString path =
        m_places.output.filePath(QString::number(m_chance.below(2)) + QStringLiteral(".vornproj"));
    if (QFile::exists(path)) {
        m_workbench.projectCommands().openProject(path);
    } else {
        m_workbench.projects().create(path, &ExampleProject::fill);
    }
}

void Walk::closeProject() {
    if (m_chance.oneIn(3)) {
        m_workbench.projects().close();
    }
}

void Walk::listFiles() {
    const ImportModules::Kind kind = someKind();
    m_workbench.imports().start(kind);
    emit dynamic_cast<VornEditor*>(m_workbench.imports().bar(kind))->filesDropped(someFiles());
}

void Walk::send() {
    const TechDB::TDatabase* const project = m_workbench.projects().projectDatabase();
    QList<const VKObject2*> objects;
    if (project != nullptr) {
        for (const TechDB::AnalysisInfo& info : project->analyses()) {
            if (m_chance.oneIn(6)) {
                objects.append(project->analysisByKey(info.key));
            }
        }
    }
    m_workbench.qualityCheck().send(objects);
}

void Walk::dragFromTree() {
    const std::unique_ptr<QMimeData> data(
        tree().model()->mimeData(tree().selectionModel()->selectedIndexes()));
    m_workbench.qualityCheck().start();
    if (data != nullptr) {
        MouseDrop::on(*m_workbench.qualityCheck().list()->viewport(), *data);
    }
}

void Walk::selectInCheck() {
    VKListViewSignal* const list = m_workbench.qualityCheck().list();
    if (list == nullptr || list->topLevelItemCount() == 0) {
        return;
    }
    if (m_chance.oneIn(4)) {
        list->selectAll();
    } else {
        QTreeWidgetItem* const item = list->topLevelItem(m_chance.below(list->topLevelItemCount()));
        item->setSelected(!item->isSelected());
    }
    settle(); // the viewers come
    if (m_chance.oneIn(2) && m_workbench.window().workspace().currentPage() != nullptr) {
        m_hands.fiddle(m_workbench.window());
    }
}

void Walk::moveSlider() {
    const VKRibbonModuleBar* const bar = m_workbench.qualityCheck().bar();
    if (bar == nullptr) {
        return;
    }
    const SliderScientific* const slider = m_chance.oneOf(bar->findChildren<SliderScientific*>());
    if (m_chance.oneIn(2)) {
        auto* const handle = slider->findChild<QSlider*>();
        handle->setValue(m_chance.below(handle->maximum() + 1));
    } else {
        slider->findChild<QDoubleSpinBox*>()->setValue(m_chance.oneOf({-1.0, 0.0, 0.01, 0.5, 1.25, 99.0}));
    }
}

void Walk::openResults() {
    if (m_workbench.qualityCheck().isOpen()) {
        m_workbench.qualityCheck().bar()->slotEventOccured(
            m_chance.oneOf<int>({ModuleObserver::dataEditorAction, ModuleObserver::dataEditorAction,
                                 ModuleObserver::saveAction, ModuleObserver::helpAction, -1}));
    }
}

void Walk::selectInTree() {
    const QAbstractItemModel& model = *tree().model();
    const QModelIndex branch = model.index(m_chance.below(qMax(1, model.rowCount())), 0);
    const int rows = model.rowCount(branch);
    if (m_chance.oneIn(5)) {
        tree().selectAll();
    } else if (rows > 0) {
        tree().setCurrentIndex(model.index(m_chance.below(rows), 0, branch));
    }
}

void Walk::openBranches() {
    if (m_chance.oneIn(2)) {
        tree().expandAll();
    } else {
        tree().collapseAll();
    }
}

void Walk::renameInTree() {
    trigger(*m_workbench.window().tree().renameAction());
    if (auto* const line = tree().viewport()->findChild<QLineEdit*>()) {
        line->setText(m_chance.text());
        QTest::keyClick(line, m_chance.oneIn(3) ? Qt::Key_Escape : Qt::Key_Return);
    }
}

void Walk::runTreeCommand() {
    const ProjectTree& commands = m_workbench.window().tree();
    trigger(*m_chance.oneOf({commands.openAction(), commands.openAction(), commands.removeAction(),
                             commands.exportAction(), commands.sendAction()}));
}

void Walk::runMenuEntry() {
    const QMenu* menu = m_chance.oneOf(m_workbench.window().menuBar()->actions())->menu();
    for (QAction* entry = nullptr; menu != nullptr; menu = entry->menu()) {
        const QList<QAction*> entries = menu->actions();
        if (entries.isEmpty()) {
            return;
        }
        entry = m_chance.oneOf(entries);
        trigger(*entry);
    }
}

void Walk::closePage() {
    if (QWidget* const page = m_workbench.window().workspace().currentPage()) {
        QTest::keyClick(page, Qt::Key_F4, Qt::ControlModifier);
    }
}

void Walk::speak() {
    m_workbench.language().choose(
        m_chance.oneOf({LanguageSwitch::Language::English, LanguageSwitch::Language::French}));
}

void Walk::dress() {
    m_workbench.look().choose(
        m_chance.oneOf({LookSwitch::Scheme::Light, LookSwitch::Scheme::Dark, LookSwitch::Scheme::Desktop}));
}

void Walk::fiddle() {
    for (int times = 0; times < 5; ++times) {
        m_hands.fiddle(m_workbench.window());
    }
}
