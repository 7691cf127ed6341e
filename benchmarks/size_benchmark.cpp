#include "MainWindow.h"
#include "ProjectMgr.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "Transaction.h"
#include "VKObject2Well.h"
#include "Workbench.h"
#include "desktopapplication.h"

#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

#include <malloc.h>

#include <map>
#include <memory>
#include <optional>
#include <stdexcept>

// What a large project costs beside a small one: each figure once with few and once with many stored
// analyses, each of them with a dataset of its own, as raw files leave them.
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

/// A project file with as many analyses, made when it is first asked for.
class StoredProject {
public:
    explicit StoredProject(int count) {
        const auto project = TechDB::TDatabase::create(path());
        TechDB::Transaction transaction(*project);
        for (int i = 0; i < count; ++i) {
            project->addAnalysis(QStringLiteral("Well %1-%2.S00").arg(i % 97).arg(i), "Rock-Eval VI",
                                 curve());
            const auto* const dataset = project->addWell(QStringLiteral("Well %1-%2.R00").arg(i % 97).arg(i));
            project->addSample(dataset->key(), "Rock-Eval", {{"Tmax"}, {"value"}, {431.0}, {}});
        }
        transaction.commit();
    }
    QString path() const { return m_folder.filePath("lab.vornproj"); }

    static const StoredProject& of(int count) {
        static std::map<int, StoredProject> projects;
        return projects.try_emplace(count, count).first->second;
    }

private:
    QTemporaryDir m_folder;
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
void open(Workbench& workbench, int count) {
    workbench.projects().open(StoredProject::of(count).path());
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

void openProject(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    StoredProject::of(count);
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<Workbench> workbench;
        shown(workbench);
        state.ResumeTiming();
        open(*workbench, count);
        state.PauseTiming();
        expect(firstAnalysis(*workbench).data().toString() == QLatin1String("Well 0-0.S00"));
        workbench.reset();
        state.ResumeTiming();
    }
}

/// One name among all, and then everything again.
void findName(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    std::optional<Workbench> workbench;
    open(*shown(workbench), count);
    auto& filter = *workbench->window().tree().findChild<QLineEdit*>();
    const QString name = QStringLiteral("-%1.s00").arg(count - 1);
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
void findText(benchmark::State& state, const QString& text) {
    std::optional<Workbench> workbench;
    open(*shown(workbench), static_cast<int>(state.range(0)));
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
void store1000(benchmark::State& state) {
    const auto project = TechDB::TDatabase::open(StoredProject::of(static_cast<int>(state.range(0))).path());
    for (auto _ : state) {
        const TechDB::Transaction takenBack(*project);
        for (int i = 0; i < 1000; ++i) {
            project->addAnalysisOnce(QStringLiteral("Well 50-%1.S00").arg(i), "Rock-Eval VI", curve());
        }
    }
}

/// What an open project and its tree take, once a name was looked for.
void memory(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    StoredProject::of(count);
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::optional<Workbench> workbench;
        shown(workbench);
        const std::size_t before = mallinfo2().uordblks;
        open(*workbench, count);
        auto& filter = *workbench->window().tree().findChild<QLineEdit*>();
        filter.setText(QStringLiteral("-%1.s00").arg(count - 1));
        settle();
        filter.clear();
        settle();
        bytes = mallinfo2().uordblks - before;
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);
}

BENCHMARK(openProject)->Name("open")->Apply(sizes);
BENCHMARK(findName)->Name("find_name")->Apply(sizes);
BENCHMARK_CAPTURE(findText, nothing, QStringLiteral("no name holds this"))
    ->Name("find_nothing")
    ->Apply(sizes);
BENCHMARK_CAPTURE(findText, all, QStringLiteral("e"))->Name("find_all")->Apply(sizes);
BENCHMARK(store1000)->Name("store_1000")->Apply(sizes);
BENCHMARK(memory)->Name("memory")->Iterations(1)->Apply(sizes);

} // namespace

int main(int argc, char** argv) {
    const DesktopApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
