#include "RawFixture.h"

#include "RawFileKind.h"
#include "TFileBuffer.h"
#include "VKImportCtrl.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"

#include <QAbstractItemModel>

#include <sys/stat.h>

namespace {

class RawFiles : public RawTest {
protected:
    bool accepts(const QString& file) {
        TFileBuffer buffer;
        text.clear();
        reader.prepareForProbe(true);
        return reader.acceptsFile(buffer, file, text);
    }

    int countOf(const QString& name, const QByteArray& bytes) {
        reader.setSource({}, write(name, bytes), {}, nullptr);
        return reader.dataCount();
    }

    static QVariant cell(const QAbstractItemModel& model, int row, int column) {
        return model.index(row, column).data();
    }

    ImportRockEvalVI reader;
    QString text;
};

} // namespace

TEST_F(RawFiles, travel_bit_for_bit_from_the_file_into_the_project) {
    VKImportCtrl pass(false);
    auto* const raw = dynamic_cast<ImportRockEvalVI*>(pass.getDll(25));
    ASSERT_NE(raw, nullptr);
    QDir examples(EXAMPLES);
    const QStringList files = examples.entryList({"*.S00"});
    ASSERT_GT(files.size(), 5);
    for (QString name : files) {
        const QString file = examples.filePath(name);
        TFileBuffer none;
        raw->prepareForProbe(true);
        ASSERT_TRUE(raw->acceptsFile(none, file, text));
        raw->setSource({}, file, {}, nullptr);
        const QList<float*> channels{raw->firstChannel(), raw->secondChannel()};
        ASSERT_TRUE(imports->addNewAnalysisPath(name, false));
        ASSERT_TRUE(imports->writeAnalysisFile(tcmPath(*imports, name), channels, raw->dataCount(), 0, 1,
                                               "Source Rock QAQC", nullptr));
        imports->analysisObjectSave(name);
        const VKObject2Analysis* const object = imports->getAnalysis(name);
        ASSERT_NE(object, nullptr);
        bool first = true;
        bool second = true;
        int third = 0;
        ASSERT_TRUE(project->canPushObject(object, &first, &second, &third));
        ASSERT_TRUE(imports->objectPush(project.get(), object));

        const VKObject2Analysis* const analysis = project->getAnalysis(name);
        ASSERT_NE(analysis, nullptr) << qPrintable(name);
        const auto graded = rockeval::toChannels(rockeval::readSignalFile(file.toStdString()).curve);
        const TAnalysisData curve = project->curve(analysis->key());
        EXPECT_TRUE(curve.equals({graded.time, graded.fid})) << qPrintable(name);
        EXPECT_FALSE(project->canPushObject(analysis, nullptr, nullptr, nullptr))
            << "it stands there already";
    }
    EXPECT_EQ(project->analyses().first().analysisType, "Source Rock QAQC");
    EXPECT_EQ(errors(), "");
}

TEST_F(RawFiles, are_known_by_name_and_by_content) {
    EXPECT_TRUE(accepts(write("a.s00", "\r\n[Curves pyro]\r\n")));
    EXPECT_TRUE(accepts(write("b.R00", "\xEF\xBB\xBF  [Param]\n")));
    EXPECT_EQ(errors(), "");
    EXPECT_FALSE(accepts(path("missing.xlsx")));
    EXPECT_FALSE(accepts(write("S00", "[Param]\n")));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(errors(), "") << "other names are not this reader's business";

    ASSERT_EQ(mkfifo(qPrintable(path("pipe.S00")), 0600), 0);
    ASSERT_TRUE(QDir().mkpath(path("folder.S00")));
    const QByteArray late(RawFileKind::headSize, '\n');
    const std::vector<std::pair<QString, std::string>> refused{
        {path("missing.S00"), "no such file"},
        {path("pipe.S00"), "no regular file"},
        {path("folder.S00"), "no regular file"},
        {write("empty.S00", ""), "no section"},
        {write("table.R00", "PK\x03\x04[x]"), "no section"},
        {write("wide.S00", QByteArray("\xFF\xFE[\0P\0\n\0[", 9)), "no section"},
        {write("late.S00", late + "[Curves pyro]\n0\t0\t1\n"), "no section"}};
    for (const auto& [file, reason] : refused) {
        log.clear();
        EXPECT_FALSE(accepts(file)) << qPrintable(file);
        EXPECT_TRUE(says(errors(), reason));
        EXPECT_TRUE(says(errors(), "<b>" + QFileInfo(file).fileName().toStdString() + "</b>"));
        EXPECT_EQ(errors(), text.toStdString());
    }
    TFileBuffer buffer(write("behind.S00", "[Curves pyro]\n"), true);
    EXPECT_TRUE(reader.acceptsFile(buffer, "elsewhere.S00", text));
}

TEST_F(RawFiles, that_cannot_be_read_give_no_data_and_say_why_once) {
    EXPECT_EQ(reader.dataCount(), -9999) << "there is no source yet";
    EXPECT_EQ(errors(), "");
    const std::vector<std::tuple<QString, QByteArray, std::string>> refused{
        {"oxi.S00", "[Curves oxi]\n0\t300\t5\t6\n",
         "<b>oxi.S00</b>, line 2: the file ends without a section"},
        {"rows.S00", "[Curves pyro]\nx\n", "<b>rows.S00</b>"},
        {"<i>.R00", "Well=A\n", "<b>&lt;i&gt;.R00</b>"}};
    for (const auto& [name, bytes, reason] : refused) {
        log.clear();
        EXPECT_EQ(countOf(name, bytes), -9999);
        EXPECT_EQ(reader.firstChannel(), nullptr);
        EXPECT_EQ(reader.secondChannel(), nullptr);
        EXPECT_EQ(reader.resultsModel(), nullptr);
        EXPECT_TRUE(says(errors(), reason));
        EXPECT_EQ(log.entries().size(), 1U);
    }
    reader.setSource({}, path("missing.S00"), {}, nullptr);
    EXPECT_EQ(reader.dataCount(), -9999);
    EXPECT_TRUE(says(errors(), "does not exist"));
}

TEST_F(RawFiles, deliver_time_and_detector_as_floats_and_tell_what_was_left_out) {
    EXPECT_EQ(countOf("a.S00", "[Curves pyro]\n0\t300\t1\n0,1\t300\t-2,5\nbad\n16777217\t300\t4\n"), 3);
    EXPECT_EQ(std::vector<float>(reader.firstChannel(), reader.firstChannel() + 3),
              (std::vector<float>{0.0F, 0.1F, 16777216.0F}));
    EXPECT_EQ(std::vector<float>(reader.secondChannel(), reader.secondChannel() + 3),
              (std::vector<float>{1.0F, -2.5F, 4.0F}));
    const QStringList warnings = log.messages(MessageLevel::Warning);
    ASSERT_EQ(warnings.size(), 2);
    EXPECT_TRUE(says(warnings.first().toStdString(), "<b>a.S00</b>, line 4: row left out"));

    log.clear();
    EXPECT_EQ(countOf("b.S00", "[Curves pyro]\n0\t0\t1\n" + QByteArray("<b>\n").repeated(1000)), 1);
    EXPECT_EQ(log.entries().size(), 11U) << "ten places and that there are more";
    EXPECT_TRUE(says(log.messages(MessageLevel::Warning).first().toStdString(), "&lt;b&gt;"));

    reader.setSource({}, "c.S00", {}, new TFileBuffer(write("other", "[Curves pyro]\n5\t0\t7\n"), true));
    EXPECT_EQ(reader.dataCount(), 1) << "the buffer counts, and nothing of the source before";
    EXPECT_EQ(reader.firstChannel()[0], 5.0F);
}

TEST_F(RawFiles, with_results_become_a_table_that_keeps_every_line) {
    const QByteArray file =
        "Free\n[Param]\nWell=A\xE9 1\nDepth=\nSample=007\nLabel=1234567890123456\n[Empty]\n"
        "[Results_1]\nVMax_2=61,5\nKFid=1.34997630867224E-06\nVMax_2=-3\nDate=06-22-2020\n"
        "=a=b\n";
    EXPECT_EQ(countOf("a.r00", file), -1);
    EXPECT_EQ(reader.firstChannel(), nullptr);
    QAbstractItemModel* const table = reader.resultsModel();
    ASSERT_NE(table, nullptr);
    const std::vector<std::array<QVariant, 4>> expected{
        {"", QVariant(), QVariant(), "Free"},
        {"[Param] Well", "Param", "Well", QString::fromUtf8("Aé 1")},
        {"[Param] Depth", "Param", "Depth", QVariant()},
        {"[Param] Sample", "Param", "Sample", "007"},
        {"[Param] Label", "Param", "Label", "1234567890123456"},
        {"[Empty]", "Empty", QVariant(), QVariant()},
        {"[Results_1] VMax_2", "Results_1", "VMax_2", 61.5},
        {"[Results_1] KFid", "Results_1", "KFid", 1.34997630867224E-06},
        {"[Results_1] VMax_2", "Results_1", "VMax_2", -3.0},
        {"[Results_1] Date", "Results_1", "Date", "06-22-2020"},
        {"[Results_1]", "Results_1", QVariant(), "a=b"}};
    ASSERT_EQ(table->rowCount(), static_cast<int>(expected.size()));
    ASSERT_EQ(table->columnCount(), 3);
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto& line = expected[static_cast<std::size_t>(row)];
        EXPECT_EQ(table->headerData(row, Qt::Vertical), line[0]) << row;
        for (int column = 0; column < 3; ++column) {
            const QVariant found = cell(*table, row, column);
            EXPECT_EQ(found, line[static_cast<std::size_t>(column) + 1]) << row << ' ' << column;
            EXPECT_EQ(found.type(), line[static_cast<std::size_t>(column) + 1].type()) << row;
        }
    }
    EXPECT_TRUE(says(log.messages(MessageLevel::Warning).join('|').toStdString(), "<b>a.r00</b>, line 11"));
}
