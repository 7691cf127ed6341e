#include "desktopapplication.h"
#include "importdesk.h"
#include "measuredcurve.h"
#include "storedrows.h"

#include "SqliteDialect.h"
#include "TDatabase.h"
#include "WorkbookFile.h"
#include "WorkbookReader.h"
#include "rockeval/channels.h"
#include "rockeval/readbytes.h"
#include "rockeval/signalreader.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cmath>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Imports through the whole workbench, beside what they can't do without: reading the files, the rows that
// they leave in the project, and for curves the files that hold them.
//
//     import_benchmark --write TABLE.xlsx         writes the table that is measured
//     import_benchmark --peak-memory TABLE        imports it once and prints the process' peak, in kB
//     import_benchmark [OPTIONS] [TABLE...]       measures these tables and a thousand raw files
namespace {

using Kind = ImportModules::Kind;

constexpr int tableRows = 10'000;
constexpr int tableColumns = 40;
constexpr int rawFiles = 1'000;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
    }
    return file.readAll();
}

/// Samples with three columns of text and 36 of numbers that no catalogue knows.
void writeTable(const QString& path) {
    QStringList headers = {"Sample", "Facies", "Colour", "Remark"};
    while (headers.size() < tableColumns) {
        headers.append(QString("Ratio %1").arg(headers.size()));
    }
    QVector<QVariantList> rows;
    for (int row = 0; row < tableRows; ++row) {
        QVariantList cells = {QString("S-%1").arg(row, 5, 10, QChar('0')), row % 3 == 0 ? "marl" : "shale",
                              row % 5 == 0 ? "grey" : "black", QString("core %1").arg(row / 20)};
        while (cells.size() < tableColumns) {
            cells.append(std::round(1e4 * std::abs(std::sin(row * 0.7 + cells.size()))) / 1e2);
        }
        rows.append(cells);
    }
    writeWorkbook(path, headers, rows);
}

/// An empty project file without a window.
class EmptyProject {
public:
    EmptyProject() { TechDB::TDatabase::create(path()); }
    QString path() const { return m_folder.filePath("empty.vornproj"); }
    QString file(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// The rows of a table that was imported.
const std::vector<Rows>& rowsOf(const QString& path) {
    static const std::vector<Rows> all = [&path] {
        Desk desk;
        desk.import(Kind::Custom, {path});
        const PlainConnection project(desk.projectPath());
        std::vector<Rows> tables;
        for (const char* table :
             {"datasets", "samples", "sample_properties", "sample_rows", "sample_columns", "sample_values"}) {
            tables.emplace_back(project, table);
        }
        return tables;
    }();
    return all;
}

void importTable(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        state.PauseTiming();
        auto desk = std::make_optional<Desk>();
        state.ResumeTiming();
        desk->import(Kind::Custom, {path});
        state.PauseTiming();
        desk->expectTable(tableRows);
        desk.reset();
        state.ResumeTiming();
    }
}

void readTable(benchmark::State& state, const QString& path) {
    const QByteArray bytes = contentOf(path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(WorkbookReader::read(bytes, path));
    }
}

void insertTable(benchmark::State& state, const QString& path) {
    const std::vector<Rows>& tables = rowsOf(path);
    for (auto _ : state) {
        state.PauseTiming();
        auto target = std::make_optional<EmptyProject>();
        auto connection = std::make_optional<PlainConnection>(target->path());
        state.ResumeTiming();
        connection->run("BEGIN IMMEDIATE");
        for (const Rows& rows : tables) {
            QSqlQuery insertion = rows.insertion(*connection);
            for (int row = 0; row < rows.count(); ++row) {
                rows.insert(insertion, row);
            }
        }
        connection->run("COMMIT");
        state.PauseTiming();
        connection.reset();
        target.reset();
        state.ResumeTiming();
    }
}

/// The measured curve under a thousand names.
const QStringList& rawPaths() {
    static const QTemporaryDir folder;
    static const QStringList all = [] {
        const std::string bytes = MeasuredCurve().fileBytes();
        QStringList paths;
        for (int number = 0; number < rawFiles; ++number) {
            paths.append(folder.filePath(QString("well %1.S00").arg(number)));
            QFile file(paths.last());
            file.open(QIODevice::WriteOnly);
            file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        }
        return paths;
    }();
    return all;
}

/// What the import of the raw files leaves behind.
struct StoredCurves {
    static const StoredCurves& all() {
        static const StoredCurves stored = [] {
            Desk desk;
            desk.import(Kind::SourceRock, rawPaths());
            const PlainConnection project(desk.projectPath());
            const PlainConnection index(desk.indexPath());
            return StoredCurves{{project, "analyses"},
                                {project, "curves"},
                                {index, "analyses"},
                                contentOf(desk.curvePath("well 0.S00"))};
        }();
        return stored;
    }

    Rows analyses;
    Rows curves;
    Rows indexed;
    QByteArray file;
};

void importRaw(benchmark::State& state) {
    const QStringList& paths = rawPaths();
    for (auto _ : state) {
        state.PauseTiming();
        auto desk = std::make_optional<Desk>();
        state.ResumeTiming();
        desk->import(Kind::SourceRock, paths);
        state.PauseTiming();
        desk->expectCurves(rawFiles);
        desk->keepFiles();
        desk.reset();
        state.ResumeTiming();
    }
}

void readRaw(benchmark::State& state) {
    std::vector<std::string> paths;
    for (const QString& path : rawPaths()) {
        paths.push_back(path.toStdString());
    }
    for (auto _ : state) {
        for (const std::string& path : paths) {
            const std::string bytes = rockeval::readBytes(path);
            benchmark::DoNotOptimize(rockeval::toChannels(rockeval::readSignal(bytes, path).curve));
        }
    }
}

/// A name is reserved in the index before its curve is written, and given up for the analysis; then the
/// project takes it: three transactions a file, of which the last one waits for the disk.
void insertCurves(const PlainConnection& project, const PlainConnection& index) {
    const StoredCurves& stored = StoredCurves::all();
    QSqlQuery reservation = index.prepared("INSERT INTO reserved_names (name, session) VALUES (?, 'bench')");
    QSqlQuery release = index.prepared("DELETE FROM reserved_names WHERE name = ?");
    QSqlQuery indexed = stored.indexed.insertion(index);
    QSqlQuery analysis = stored.analyses.insertion(project);
    QSqlQuery curve = stored.curves.insertion(project);
    const auto together = [](const PlainConnection& connection, auto write) {
        connection.run("BEGIN IMMEDIATE");
        write();
        connection.run("COMMIT");
    };
    for (int row = 0; row < rawFiles; ++row) {
        const QVariant name = stored.indexed.value(row, 1);
        together(index, [&] {
            reservation.bindValue(0, name);
            PlainConnection::start(reservation);
        });
        together(index, [&] {
            stored.indexed.insert(indexed, row);
            release.bindValue(0, name);
            PlainConnection::start(release);
        });
        together(project, [&] {
            stored.analyses.insert(analysis, row);
            stored.curves.insert(curve, row);
        });
    }
}

void insertRaw(benchmark::State& state) {
    StoredCurves::all();
    for (auto _ : state) {
        state.PauseTiming();
        auto project = std::make_optional<EmptyProject>();
        auto index = std::make_optional<EmptyProject>();
        auto toProject = std::make_optional<PlainConnection>(project->path());
        auto toIndex =
            std::make_optional<PlainConnection>(index->path(), TechDB::SqliteDialect().setUpOfReplaceable());
        toIndex->run(
            "CREATE TABLE reserved_names (name TEXT PRIMARY KEY, session TEXT NOT NULL) WITHOUT ROWID");
        state.ResumeTiming();
        insertCurves(*toProject, *toIndex);
        state.PauseTiming();
        toProject.reset();
        toIndex.reset();
        project.reset();
        index.reset();
        state.ResumeTiming();
    }
}

/// The files that hold the curves, each in a folder of its own and written through to the disk.
void writeCurveFiles(benchmark::State& state) {
    const QByteArray& bytes = StoredCurves::all().file;
    for (auto _ : state) {
        state.PauseTiming();
        auto folder = std::make_unique<QTemporaryDir>();
        state.ResumeTiming();
        for (int number = 0; number < rawFiles; ++number) {
            const QString path = folder->filePath(QString("%1/%1.tcm").arg(number));
            QDir().mkpath(QFileInfo(path).path());
            QSaveFile file(path);
            file.open(QIODevice::WriteOnly);
            file.write(bytes);
            file.commit();
        }
        state.PauseTiming();
        keep(std::move(folder));
        state.ResumeTiming();
    }
}

/// Of the whole process, libraries and window included.
int printPeakMemory(const QString& path) {
    Desk desk;
    desk.import(Kind::Custom, {path});
    desk.expectTable(tableRows);
    for (const QByteArray& line : contentOf("/proc/self/status").split('\n')) {
        if (line.startsWith("VmHWM:")) {
            std::cout << line.mid(6).simplified().split(' ').first().toStdString() << '\n';
        }
    }
    return 0;
}

void add(const QString& name, const std::function<void(benchmark::State&)>& function) {
    benchmark::RegisterBenchmark(name.toLatin1().constData(), function)
        ->Iterations(1)
        ->MeasureProcessCPUTime()
        ->Unit(benchmark::kMillisecond);
}

int measure(const QStringList& tables) {
    for (const QString& path : tables) {
        const QString suffix = QFileInfo(path).suffix();
        add("import_" + suffix, [path](benchmark::State& state) { importTable(state, path); });
        add("read_" + suffix, [path](benchmark::State& state) { readTable(state, path); });
    }
    if (!tables.isEmpty()) {
        add("insert_table", [path = tables[0]](benchmark::State& state) { insertTable(state, path); });
    }
    add("import_raw", importRaw);
    add("read_raw", readRaw);
    add("insert_raw", insertRaw);
    add("write_curve_files", writeCurveFiles);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

int run(const QStringList& arguments) {
    if (arguments.value(0) == "--write") {
        writeTable(arguments.value(1));
        return 0;
    }
    if (arguments.value(0) == "--peak-memory") {
        return printPeakMemory(arguments.value(1));
    }
    return measure(arguments);
}

} // namespace

int main(int argc, char** argv) {
    const DesktopApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    try {
        return run(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
