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
    /// Without what an earlier mutant left beside it.
    void write(const QString& file, const std::string& bytes) const {
        QFile::remove(file + "-wal");
        QFile::remove(file + "-shm");
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly) && opened.write(asBytes(bytes)) >= 0);
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
        const TAnalysisData curve = project.curve(info.key);
        EXPECT_EQ(curve.whyUnusable(), QString());
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
    int refused = 0;
    Mutants(whole.encoded().toStdString()).each(1000, [&](const std::string& bytes, int) {
        refused += isRefused([&] {
            const TcmFile file = TcmFile::decoded(asBytes(bytes), QStringLiteral("m.tcm"));
            EXPECT_TRUE(file.curve().equals(whole.curve()));
            EXPECT_EQ(file.analysisType(), whole.analysisType());
        })
                       ? 1
                       : 0;
    });
    EXPECT_GT(refused, 900);
}

TEST_F(Mutation, a_workbook_with_sums_is_the_same_or_refused) {
    int refused = 0;
    for (const QFileInfo& sample : ExpectedBook::samples(QStringLiteral("xlsx"))) {
        Mutants(content(sample.filePath())).each(60, [&](const std::string& bytes, int) {
            refused += isRefused([&] {
                const Workbook::Book book = WorkbookReader::read(asBytes(bytes), QStringLiteral("m.xlsx"));
                EXPECT_TRUE(!book.warnings.isEmpty() || ExpectedBook::text(ExpectedBook::toJson(book)) ==
                                                            ExpectedBook::of(sample.filePath()))
                    << sample.fileName().toStdString();
            })
                           ? 1
                           : 0;
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
        Mutants(content(sample.filePath())).each(120, [&](const std::string& bytes, int) {
            const bool isOut = isRefused([&] {
                const Workbook::Book book =
                    WorkbookReader::read(asBytes(bytes), QStringLiteral("m.xls"), limits);
                EXPECT_FALSE(book.sheets.empty());
            });
            ++(isOut ? refused : read);
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
    const QString file = path("damaged.vornproj");
    int refused = 0;
    // A damaged head is no database's: all of it is refused at once.
    for (const std::size_t spared : {0U, 1024U}) {
        Mutants(content(path("whole.vornproj")), spared).each(100, [&](const std::string& bytes, int) {
            write(file, bytes);
            refused += isRefused([&] { use(*TechDB::TDatabase::open(file)); }) ? 1 : 0;
        });
    }
    EXPECT_GT(refused, 100);
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
    const QString damaged = path("damaged.vorncatalogue");
    int refused = 0;
    for (const std::size_t spared : {0U, 1024U}) {
        Mutants(content(place), spared).each(100, [&](const std::string& bytes, int) {
            write(damaged, bytes);
            manager.setPlace(damaged);
            log.clear();
            working.findByName("Gamma index");
            working.lookupParameter("Gamma index");
            if (!define("Delta index")) {
                EXPECT_FALSE(log.messages(MessageLevel::Error).isEmpty());
                ++refused;
            }
        });
    }
    manager.setPlace({});
    EXPECT_GT(refused, 50);
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
    int refused = 0;
    for (const std::size_t spared : {0U, 1024U}) {
        Mutants(content(index), spared).each(75, [&](const std::string& bytes, int number) {
            write(index, bytes);
            log.clear();
            const bool isOut = isRefused([&] {
                const auto imports = VKDatabaseImport::open(path("import"));
                for (const TechDB::AnalysisInfo& info : imports->analyses()) {
                    imports->objectPush(project.get(), imports->analysisByKey(info.key));
                }
                imports->problems();
            });
            refused += isOut || !log.messages(MessageLevel::Error).isEmpty() ? 1 : 0;
            isRefused([&] { import(QString::number(number)); });
        });
    }
    EXPECT_GT(refused, 50);
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
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly) && opened.write(asBytes(bytes)) >= 0);
        opened.close();
        QSettings().sync();
        start();
        workbench->language().choose(LanguageSwitch::remembered());
        workbench->projectCommands().openAtStart();
        EXPECT_GT(ImportDraft(sheets, 0, strategy).columnCount(), 0);
        settle();
        workbench->window().close();
    });
}
