// Damaged files of the desktop: what it imports, what it keeps, what it remembers.
#include "AsciiImportWizardStrategySR.h"
#include "ExpectedBook.h"
#include "ImportDraft.h"
#include "ImportSteps.h"
#include "MessageCollector.h"
#include "Mutants.h"
#include "TVornCompoundPrivate.h"
#include "TcmFile.h"
#include "VKDataModelGeneric.h"
#include "VKDatabaseVornMGR.h"
#include "VKError.h"
#include "VKObject2Well.h"
#include "WorkbenchFixture.h"
#include "WorkbookReader.h"

#include <QDir>
#include <QSettings>

#include <functional>

namespace {

QByteArray asBytes(const std::string& bytes) {
    return QByteArray::fromStdString(bytes);
}

std::string content(const QString& path) {
    return ExpectedBook::content(path).toStdString();
}

void write(const QString& file, const std::string& bytes) {
    QFile opened(file);
    ASSERT_TRUE(opened.open(QIODevice::WriteOnly) && opened.write(asBytes(bytes)) >= 0);
}

/// Whether it was refused, with a sentence; any other failure ends the test.
bool isRefused(const std::function<void()>& action) {
    try {
        action();
        return false;
    } catch (const VKError& error) {
        EXPECT_FALSE(error.text().isEmpty());
        return true;
    }
}

class Mutation : public testing::Test {
protected:
    Mutation() { MessageLoggerInterface::setDefaultLogger(&log); }
    ~Mutation() override { MessageLoggerInterface::setDefaultLogger(nullptr); }

    QString path(const QString& name) const { return folder.filePath(name); }
    bool told() const { return !log.messages(MessageLevel::Error).isEmpty(); }
    /// Meets twice so many damaged forms of a database in a file; a damaged head is no database's, so half of
    /// them have a whole one.
    template <class Meeting>
    int eachDamaged(const QString& whole, const QString& file, int count, const Meeting& meet) {
        int met = 0;
        const std::string bytes = content(whole);
        for (const std::size_t spared : {0U, 1024U}) {
            met += Mutants(bytes, spared).each(count, [&](const std::string& mutant, int number) {
                QFile::remove(file + "-wal"); // what an earlier mutant left beside it
                QFile::remove(file + "-shm");
                write(file, mutant);
                log.clear();
                return meet(file, number);
            });
        }
        return met;
    }

    const QTemporaryDir folder;
    MessageCollector log;
};

TAnalysisData bell(int points) {
    std::vector<float> x;
    std::vector<float> y;
    for (int i = 0; i < points; ++i) {
        x.push_back(static_cast<float>(i));
        y.push_back(static_cast<float>(1000 / (1 + (i - points / 2) * (i - points / 2))));
    }
    return {x, y};
}

/// Reads all, and writes.
void use(TechDB::TDatabase& project) {
    project.problems();
    for (const TechDB::AnalysisInfo& info : project.analyses()) {
        EXPECT_EQ(project.curve(info.key).whyUnusable(), QString());
    }
    for (const TechDB::DatasetInfo& dataset : project.datasets()) {
        for (const TechDB::SampleInfo& sample : project.samples(dataset.key)) {
            const TechDB::SampleTable table = project.sampleTable(sample.key);
            for (int row = 0; row < table.rowNames.size(); ++row) {
                table.cell(row, 0).toString();
            }
        }
    }
    project.analysisNames({});
    project.addAnalysisOnce(QStringLiteral("new"), QStringLiteral("t"), bell(10));
    project.addSample(project.addWell(QStringLiteral("new"))->key(), QStringLiteral("S"),
                      {{"r"}, {"c"}, {1.0}, {}});
}

} // namespace

TEST_F(Mutation, a_curve_waiting_for_its_project_is_the_same_or_refused) {
    const TcmFile whole(QStringLiteral("Source Rock QAQC"), bell(300));
    const auto meet = [&](const std::string& bytes, int) {
        return isRefused([&] {
            const TcmFile file = TcmFile::decoded(asBytes(bytes), QStringLiteral("m.tcm"));
            EXPECT_TRUE(file.curve().equals(whole.curve()));
            EXPECT_EQ(file.analysisType(), whole.analysisType());
        });
    };
    EXPECT_GT(Mutants(whole.encoded().toStdString()).each(1000, meet), 900);
}

TEST_F(Mutation, a_workbook_with_sums_is_the_same_or_refused) {
    int refused = 0;
    for (const QFileInfo& sample : ExpectedBook::samples(QStringLiteral("xlsx"))) {
        refused += Mutants(content(sample.filePath())).each(60, [&](const std::string& bytes, int) {
            return isRefused([&] {
                const Workbook::Book book = WorkbookReader::read(asBytes(bytes), QStringLiteral("m.xlsx"));
                EXPECT_TRUE(!book.warnings.isEmpty() || ExpectedBook::text(ExpectedBook::toJson(book)) ==
                                                            ExpectedBook::of(sample.filePath()))
                    << sample.fileName().toStdString();
            });
        });
    }
    EXPECT_GT(refused, 100);
}

TEST_F(Mutation, a_workbook_without_sums_is_read_or_refused) {
    int refused = 0;
    int read = 0;
    Workbook::Limits limits;
    limits.unpackedBytes = 64LL * 1024 * 1024;
    for (const QFileInfo& sample : ExpectedBook::samples(QStringLiteral("xls"))) {
        refused += Mutants(content(sample.filePath())).each(120, [&](const std::string& bytes, int) {
            return isRefused([&] {
                EXPECT_FALSE(WorkbookReader::read(asBytes(bytes), "m.xls", limits).sheets.empty());
                ++read;
            });
        });
    }
    EXPECT_GT(std::min(refused, read), 20);
}

TEST_F(Mutation, a_project_is_used_or_refused) {
    {
        const auto project = TechDB::TDatabase::create(path("whole.vornproj"));
        for (int i = 0; i < 5; ++i) {
            project->addAnalysis(QString::number(i), {}, bell(1264));
            project->addSample(project->addWell(QString::number(i))->key(), "S", {{"r"}, {"c"}, {1.0}, {}});
        }
    }
    const auto meet = [&](const QString& file, int) {
        return isRefused([&] { use(*TechDB::TDatabase::open(file)); });
    };
    EXPECT_GT(eachDamaged(path("whole.vornproj"), path("damaged.vornproj"), 100, meet), 100);
}

TEST_F(Mutation, a_catalogue_of_parameters_answers_or_tells) {
    VKDatabaseVornMGR& manager = *VKDatabaseVornMGR::getInstance();
    VKVornDatabaseInterface& working = *manager.db(VKDatabaseVornMGR::workingCatalogue);
    const QString none = QStringLiteral("-9999");
    const auto define = [&](const QString& name) {
        TechDB::TVornCompoundPrivate compound(QStringLiteral("0"));
        compound.setCompoundName(name);
        const VKVornRecord* const added = working.addCompound(&compound, none);
        const VKVornRecord* const pair =
            added == nullptr ? nullptr : working.addPair(added->recordId(), "none", none);
        const QString key = pair == nullptr ? QStringLiteral("?") : pair->recordKey();
        working.createParameter(name, name, '[' + key + ']', {}, 0, {}, {}, {}, {}, {}, {});
        working.commitParameters();
        return added != nullptr && working.findByName(name) != nullptr &&
               working.lookupParameter(name) != nullptr;
    };
    const QString place = path("whole.vorncatalogue");
    manager.setPlace(place);
    working.addEIC("none", none);
    ASSERT_TRUE(define("Gamma index"));
    manager.close();
    const auto meet = [&](const QString& file, int) {
        manager.setPlace(file);
        working.findByName("Gamma index");
        working.lookupParameter("Gamma index");
        const bool isDefined = define("Delta index");
        EXPECT_TRUE(isDefined || told());
        return !isDefined;
    };
    EXPECT_GT(eachDamaged(place, path("damaged.vorncatalogue"), 100, meet), 50);
    manager.setPlace({});
}

TEST_F(Mutation, an_index_of_imported_curves_is_used_or_refused) {
    const auto import = [&](const QString& name) {
        const auto imports = VKDatabaseImport::open(path("import"));
        return ImportSteps::imported(*imports, name, {1.0F, 3.0F, 1.0F}) != nullptr;
    };
    for (const char* const name : {"A.S00", "B.S00", "C.S00"}) {
        ASSERT_TRUE(import(name));
    }
    const QString index = QDir(path("import")).entryInfoList(QDir::Files).value(0).filePath();
    const auto project = TechDB::TDatabase::create(path("lab.vornproj"));
    const auto meet = [&](const QString&, int number) {
        const bool isOut = isRefused([&] {
            const auto imports = VKDatabaseImport::open(path("import"));
            for (const TechDB::AnalysisInfo& info : imports->analyses()) {
                imports->objectPush(project.get(), imports->analysisByKey(info.key));
            }
            imports->problems();
        });
        const bool isRefusedOrTold = isOut || told();
        isRefused([&] { import(QString::number(number)); });
        return isRefusedOrTold;
    };
    EXPECT_GT(eachDamaged(index, index, 75, meet), 50);
    EXPECT_EQ(project->problems(), QStringList()) << "whatever the index was";
}

TEST_F(WorkbenchFixture, damaged_settings_keep_no_window_from_opening) {
    const AsciiImportWizardStrategySR strategy;
    Workbook::Sheet sheet;
    sheet.rows = {{QString("Sample"), QString("TOC (%)")}, {QString("A"), 1.5}};
    const std::vector<Workbook::Sheet> sheets{sheet};
    {
        ImportDraft draft(sheets, 0, strategy);
        draft.setTarget(1, ColumnMapping::asItIs);
        draft.remember();
    }
    workbench->projects().create(path("lab.vornproj"));
    workbench->language().choose(LanguageSwitch::Language::French);
    workbench->window().close();
    QSettings().sync();
    const QString file = QSettings().fileName();
    Mutants(content(file)).each(25, [&](const std::string& bytes, int) {
        workbench.reset();
        write(file, bytes);
        QSettings().sync();
        start();
        workbench->language().choose(LanguageSwitch::remembered());
        workbench->projectCommands().openAtStart();
        EXPECT_GT(ImportDraft(sheets, 0, strategy).columnCount(), 0);
        settle();
        return workbench->window().close();
    });
}
