#include "desktopapplication.h"
#include "measuredcurve.h"

#include "MessageLogModel.h"
#include "ProjectTree.h"
#include "SliderScientific.h"
#include "TDatabase.h"
#include "Transaction.h"
#include "VKListViewSignal.h"
#include "VKObject2Signal.h"
#include "VKRibbonModuleBar.h"
#include "Workbench.h"
#include "Workspace.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/rawsignal.h"
#include "sourcerockqaqc/srqaqcmngr.h"

#include <benchmark/benchmark.h>

#include <QSlider>
#include <QTemporaryDir>

#include <malloc.h>

#include <memory>
#include <optional>

// What a person waits for, with a thousand stored analyses, beside the engine's own update of as many.
namespace {

using Values = MeasuredCurve::Values;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;
using Manager = algo::sr_qaqc::SourceRockQAQCMgr<double, Values>;

constexpr int analysisCount = 1000;

const rockeval::Channels& channels() {
    static const rockeval::Channels measured =
        rockeval::toChannels(rockeval::readSignal(MeasuredCurve().fileBytes(), "measured.S00").curve);
    return measured;
}

/// A project file of its own with the curve a thousand times.
class StoredProject {
public:
    StoredProject() {
        const auto project = TechDB::TDatabase::create(path());
        TechDB::Transaction transaction(*project);
        for (int i = 0; i < analysisCount; ++i) {
            project->addAnalysis(QStringLiteral("well %1.S00").arg(i), "Rock-Eval VI",
                                 TAnalysisData(channels().time, channels().fid));
        }
        transaction.commit();
    }
    QString path() const { return m_folder.filePath("thousand.vornproj"); }

private:
    QTemporaryDir m_folder;
};

void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// A window on the stored project with the quality check open.
class Session {
public:
    Session() {
        m_workbench.window().resize(1280, 800);
        m_workbench.window().show();
        m_workbench.projects().open(stored().path());
        m_workbench.qualityCheck().start();
        settle();
    }

    static const StoredProject& stored() {
        static const StoredProject project;
        return project;
    }

    /// What a drag holds when it begins.
    QList<const VKObject2*> objects() {
        QList<const VKObject2*> all;
        const TechDB::TDatabase& project = *m_workbench.projects().projectDatabase();
        const auto analyses = project.analyses();
        for (const TechDB::AnalysisInfo& info : analyses) {
            all.append(project.analysisByKey(info.key));
        }
        return all;
    }

    void drop(const QList<const VKObject2*>& dragged) {
        m_workbench.qualityCheck().send(dragged);
        settle();
    }

    void select(int count) {
        VKListViewSignal& list = *m_workbench.qualityCheck().list();
        const QAbstractItemModel& model = *list.model();
        // One change, as of a click with the shift key.
        list.selectionModel()->select({model.index(0, 0), model.index(count - 1, model.columnCount() - 1)},
                                      QItemSelectionModel::ClearAndSelect);
        settle();
    }

    QSlider& slider() {
        return *m_workbench.qualityCheck()
                    .bar()
                    ->findChildren<SliderScientific*>()
                    .last()
                    ->findChild<QSlider*>();
    }

private:
    Workbench m_workbench;
};

void engineUpdate(benchmark::State& state) {
    Manager manager(std::make_shared<Settings>());
    for (int i = 0; i < analysisCount; ++i) {
        manager.addAnalysis(
            algo::sr_qaqc::rawSignal<double, Values>(channels().time.data(), channels().fid.data(),
                                                     static_cast<int>(channels().time.size())),
            "well " + std::to_string(i) + ".S00");
    }
    for (auto _ : state) {
        manager.update();
    }
}

void sliderStep(benchmark::State& state) {
    Session session;
    session.drop(session.objects());
    session.select(20);
    int step = 0;
    for (auto _ : state) {
        session.slider().setValue(session.slider().maximum() / 2 + ++step % 2);
        settle();
    }
}

void openProject(benchmark::State& state) {
    Session::stored();
    for (auto _ : state) {
        state.PauseTiming();
        auto workbench = std::make_optional<Workbench>();
        workbench->window().show();
        settle();
        state.ResumeTiming();
        workbench->projects().open(Session::stored().path());
        settle();
        state.PauseTiming();
        workbench.reset();
        state.ResumeTiming();
    }
}

void show200Viewers(benchmark::State& state) {
    Session session;
    session.drop(session.objects());
    for (auto _ : state) {
        session.select(200);
        state.PauseTiming();
        session.select(1);
        state.ResumeTiming();
    }
}

void dropThousand(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto session = std::make_optional<Session>();
        const QList<const VKObject2*> dragged = session->objects();
        state.ResumeTiming();
        session->drop(dragged);
        state.PauseTiming();
        session.reset();
        state.ResumeTiming();
    }
}

/// What a stored analysis takes in an open project and its tree; nothing of its 10 kB of curve.
void memoryPerAnalysis(benchmark::State& state) {
    Session::stored();
    std::size_t bytes = 0;
    for (auto _ : state) {
        Workbench workbench;
        workbench.window().show();
        settle();
        const std::size_t before = mallinfo2().uordblks;
        workbench.projects().open(Session::stored().path());
        settle();
        bytes = mallinfo2().uordblks - before;
    }
    state.counters["bytes_each"] = static_cast<double>(bytes) / analysisCount;
}

BENCHMARK(engineUpdate)->Name("engine_update")->Unit(benchmark::kMillisecond);
BENCHMARK(sliderStep)->Name("slider_step")->Unit(benchmark::kMillisecond);
BENCHMARK(dropThousand)->Name("drop_1000")->Unit(benchmark::kMillisecond);
BENCHMARK(show200Viewers)->Name("show_200_viewers")->Unit(benchmark::kMillisecond);
BENCHMARK(openProject)->Name("open_project")->Unit(benchmark::kMillisecond);
BENCHMARK(memoryPerAnalysis)->Name("memory_per_analysis")->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const DesktopApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
