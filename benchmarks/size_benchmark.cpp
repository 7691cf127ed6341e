#include "MainWindow.h"
#include "ProjectMgr.h"
#include "ProjectTree.h"
#include "ServerAddress.h"
#include "TDatabase.h"
#include "Transaction.h"
#include "VKObject2Well.h"
#include "Workbench.h"
#include "desktopapplication.h"

#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTreeView>
#include <QUrl>

#include <malloc.h>

#include <map>
#include <memory>
#include <optional>
#include <stdexcept>

// What a large project costs beside a small one: each figure once with few and once with many stored
// analyses, each of them with a dataset of its own, as raw files leave them. In a file, and also on a server
// if there is one (scripts/with-server).
namespace {

constexpr int few = 1000;
constexpr int many = 100'000;

TAnalysisData curve() {
    std::vector<float> x(16);
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = static_cast<float>(i);
    }
    return {x, x};
}

enum class Store { File, Server };

QString server() {
    return qEnvironmentVariable("VORN_TEST_SERVER");
}

void runAt(const QString& address, const QString& statement) {
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase("QPSQL", "aside");
        TechDB::ServerAddress(address).aim(connection);
        QSqlQuery query(connection.open() ? connection : QSqlDatabase());
        if (!query.exec(statement)) {
            throw std::runtime_error(connection.lastError().text().toStdString() +
                                     query.lastError().text().toStdString());
        }
    }
    QSqlDatabase::removeDatabase("aside");
}

QString emptyDatabase(const QString& name) {
    runAt(server(), "CREATE DATABASE " + name);
    QUrl address(server());
    address.setPath("/" + name);
    return address.toString();
}

/// A project with as many analyses, made when it is first asked for.
class StoredProject {
public:
    StoredProject(Store store, int count)
        : m_place(store == Store::File ? m_folder.filePath("lab.vornproj")
                                       : emptyDatabase("size_" + QString::number(count))) {
        const auto project = TechDB::TDatabase::create(m_place);
        TechDB::Transaction transaction(*project);
        for (int i = 0; i < count; ++i) {
            project->addAnalysis(QStringLiteral("Well %1-%2.S00").arg(i % 97).arg(i), "Rock-Eval VI",
                                 curve());
            const auto* const dataset = project->addWell(QStringLiteral("Well %1-%2.R00").arg(i % 97).arg(i));
            project->addSample(dataset->key(), "Rock-Eval", {{"Tmax"}, {"value"}, {431.0}, {}});
        }
        transaction.commit();
        if (store == Store::Server) {
            runAt(m_place, "VACUUM ANALYZE"); // a server does so by itself, some time after
        }
    }
    const QString& place() const { return m_place; }

    static const StoredProject& of(Store store, int count) {
        static std::map<std::pair<Store, int>, StoredProject> projects;
        return projects.try_emplace({store, count}, store, count).first->second;
    }

private:
    QTemporaryDir m_folder;
    QString m_place;
};

void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::optional<Workbench>& shown(std::optional<Workbench>& workbench) {
    workbench.emplace();
    workbench->window().resize(1280, 800);
    workbench->window().show();
    settle();
    return workbench;
}

/// Until the tree is on the screen.
void open(Workbench& workbench, const StoredProject& project) {
    workbench.projects().open(project.place());
    settle();
}

void expect(bool condition) {
    if (!condition) {
        throw std::runtime_error("the tree doesn't show what it should");
    }
}

/// Under the last section.
QModelIndex firstAnalysis(Workbench& workbench) {
    const auto* const model = workbench.window().tree().findChild<QTreeView*>()->model();
    return model->index(0, 0, model->index(model->rowCount() - 1, 0));
}

const StoredProject& projectOf(const benchmark::State& state, Store store) {
    return StoredProject::of(store, static_cast<int>(state.range(0)));
}

void openProject(benchmark::State& state, Store store) {
    const StoredProject& project = projectOf(state, store);
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<Workbench> workbench;
        shown(workbench);
        state.ResumeTiming();
        open(*workbench, project);
        state.PauseTiming();
        expect(firstAnalysis(*workbench).data().toString() == QLatin1String("Well 0-0.S00"));
        workbench.reset();
        state.ResumeTiming();
    }
}

/// One name among all, and then everything again.
void findName(benchmark::State& state, Store store) {
    const StoredProject& project = projectOf(state, store);
    std::optional<Workbench> workbench;
    open(*shown(workbench), project);
    auto& filter = *workbench->window().tree().findChild<QLineEdit*>();
    const QString name = QStringLiteral("-%1.s00").arg(state.range(0) - 1);
    for (auto _ : state) {
        filter.setText(name);
        settle();
        state.PauseTiming();
        expect(firstAnalysis(*workbench).data().toString().endsWith(name, Qt::CaseInsensitive));
        filter.clear();
        settle();
        state.ResumeTiming();
    }
}

/// What nothing holds, so that all is looked through; what everything holds.
void findText(benchmark::State& state, Store store, const QString& text) {
    const StoredProject& project = projectOf(state, store);
    std::optional<Workbench> workbench;
    open(*shown(workbench), project);
    auto& filter = *workbench->window().tree().findChild<QLineEdit*>();
    for (auto _ : state) {
        filter.setText(text);
        settle();
        state.PauseTiming();
        filter.clear();
        settle();
        state.ResumeTiming();
    }
}

/// With the names looked up as every import does. Nothing is committed, so that the project stays as it is.
void store1000(benchmark::State& state, Store store) {
    const auto project = TechDB::TDatabase::open(projectOf(state, store).place());
    for (auto _ : state) {
        const TechDB::Transaction takenBack(*project);
        for (int i = 0; i < 1000; ++i) {
            project->addAnalysisOnce(QStringLiteral("Well 50-%1.S00").arg(i), "Rock-Eval VI", curve());
        }
    }
}

/// What an open project and its tree take, once a name was looked for.
void memory(benchmark::State& state, Store store) {
    const StoredProject& project = projectOf(state, store);
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::optional<Workbench> workbench;
        shown(workbench);
        const std::size_t before = mallinfo2().uordblks;
        open(*workbench, project);
        auto& filter = *workbench->window().tree().findChild<QLineEdit*>();
        filter.setText(QStringLiteral("-%1.s00").arg(state.range(0) - 1));
        settle();
        filter.clear();
        settle();
        bytes = mallinfo2().uordblks - before;
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void registerAll(Store store) {
    const auto add = [store](const std::string& name, const auto& measured, const auto&... rest) {
        const std::string place = store == Store::File ? "/file" : "/server";
        return benchmark::RegisterBenchmark((name + place).c_str(), measured, store, rest...)
            ->Arg(few)
            ->Arg(many)
            ->Unit(benchmark::kMillisecond);
    };
    add("open", openProject);
    add("find_name", findName);
    add("find_nothing", findText, QStringLiteral("no name holds this"));
    add("find_all", findText, QStringLiteral("e"));
    add("store_1000", store1000);
    add("memory", memory)->Iterations(1);
}

} // namespace

int main(int argc, char** argv) {
    const DesktopApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerAll(Store::File);
    if (!server().isEmpty()) {
        registerAll(Store::Server);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
