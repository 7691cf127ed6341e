#include "ExpectedBook.h"
#include "ImportExcel.h"
#include "MessageCollector.h"
#include "TFileBuffer.h"
#include "VKImportCtrl.h"
#include "WorkbookModel.h"
#include "WorkbookReader.h"

#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const QString tables = QStringLiteral(IMPORT_TEST_DATA "/tables.xlsx");

class ImportExcelTest : public testing::Test {
protected:
    ImportExcelTest() { MessageLoggerInterface::setDefaultLogger(&log); }

    bool accepts(const QString& path, const QByteArray& content = {}) {
        text.clear();
        log.clear();
        reader.prepareForProbe(true);
        TFileBuffer buffer = content.isEmpty() ? TFileBuffer() : TFileBuffer(write("buffer", content), true);
        return reader.acceptsFile(buffer, path, text);
    }

    /// Refused with one sentence, on the log and in the text, that names the file and holds `cause`.
    void expectRefused(const QString& path, const char* cause, const QByteArray& content = {}) {
        EXPECT_FALSE(accepts(path, content)) << qPrintable(path);
        EXPECT_EQ(log.messages(MessageLevel::Error), QStringList(text));
        EXPECT_EQ(log.entries().size(), 1U);
        EXPECT_TRUE(text.contains(path.toHtmlEscaped()) && text.contains(cause)) << qPrintable(text);
    }

    QString write(const QString& name, const QByteArray& content) {
        return fileWith(folder.filePath(name), content);
    }

    MessageCollector log;
    QTemporaryDir folder;
    ImportExcel reader;
    QString text;
};

} // namespace

TEST_F(ImportExcelTest, accepts_by_name_and_content) {
    EXPECT_TRUE(accepts(tables));
    const QByteArray zip = bytesOf(tables);
    for (const char* const name : {"A.XLSX", "b.xlsm", "c.Xls", "d.e.xls"}) {
        EXPECT_TRUE(accepts(write(name, zip))) << name << ": the content decides how it is read";
    }
    EXPECT_TRUE(accepts("nowhere.xlsx", zip)) << "a buffer takes the place of the file";
    for (const char* const name : {"signal.S00", "table.ods", "xlsx", "a.xlsx.txt", "a.xlsb", ""}) {
        EXPECT_FALSE(accepts(name)) << name;
        EXPECT_TRUE(log.entries().empty() && text.isEmpty()) << "files of other readers are no failure";
    }
}

TEST_F(ImportExcelTest, says_why_it_refuses_a_file_with_its_name) {
    expectRefused(folder.filePath("gone & lost.xlsx"), "does not exist");
    const QString inside = folder.filePath("folder.xls");
    ASSERT_TRUE(QDir().mkdir(inside));
    expectRefused(inside, "no regular file");
    const QString pipe = folder.filePath("pipe.xls");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    expectRefused(pipe, "no regular file");
    expectRefused(write("web.xls", "<html><table>"), "no Excel workbook");
    expectRefused(write("empty.xlsx", ""), "no Excel workbook");
    expectRefused(write("short.xlsx", "PK"), "no Excel workbook");
    expectRefused("nowhere.xls", "no Excel workbook", "a\tb\n");
}

TEST_F(ImportExcelTest, reads_what_it_was_given_and_forgets_it_with_the_next) {
    EXPECT_EQ(reader.importedModel(), nullptr) << "there is no source yet";
    reader.setSource({}, "renamed.xlsx", {}, new TFileBuffer(tables, true));
    const auto* model = dynamic_cast<WorkbookModel*>(reader.importedModel());
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->fileName(), "renamed.xlsx");
    EXPECT_EQ(model->index(4, 5).data(), "TRUE");
    EXPECT_EQ(model->columnCount(), 52);
    EXPECT_EQ(
        log.messages(MessageLevel::Warning),
        QStringList("Workbook <b>renamed.xlsx</b>: Sheet <b>Chart</b> holds no table and was left out."));
    EXPECT_EQ(reader.importedModel(), model) << "it is read once";

    reader.setSource({}, QStringLiteral(IMPORT_TEST_DATA "/by-hand.xlsx"), {}, nullptr);
    model = dynamic_cast<WorkbookModel*>(reader.importedModel());
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->fileName(), "by-hand.xlsx");
    EXPECT_EQ(model->index(1, 1).data(), "shared");

    reader.prepareForProbe(true);
    EXPECT_EQ(reader.importedModel(), nullptr);
    reader.setSource({}, folder.filePath("gone.xlsx"), {}, nullptr);
    EXPECT_THROW(reader.importedModel(), VKError);
    reader.setSource({}, "damaged.xlsx", {}, new TFileBuffer(write("damaged.xlsx", "PK\x03\x04"), true));
    EXPECT_THROW(reader.importedModel(), VKError);
    EXPECT_THROW(reader.importedModel(), VKError) << "the source is the same";
}

TEST_F(ImportExcelTest, is_reader_24_of_an_import_pass) {
    VKImportCtrl pass(false);
    VKImportInterface* const excel = pass.getDll(24);
    EXPECT_NE(dynamic_cast<VKImportDatasetInterface*>(excel), nullptr);
    EXPECT_NE(pass.getDll(24), excel);
    EXPECT_EQ(pass.getDll(0), nullptr);
    delete excel; // the other is the pass's to free
}

TEST(WorkbookReader, finds_in_files_of_other_writers_what_another_reader_finds_whatever_they_are_called) {
    const QFileInfoList samples = ExpectedBook::samples("xls") + ExpectedBook::samples("xlsx");
    EXPECT_GE(samples.size(), 11);
    for (const QFileInfo& sample : samples) {
        SCOPED_TRACE(sample.fileName().toStdString());
        const Workbook::Book book = WorkbookReader::read(bytesOf(sample.filePath()), "a.xls");
        EXPECT_EQ(ExpectedBook::text(ExpectedBook::toJson(book)), ExpectedBook::of(sample.filePath()));
        if (sample.suffix() == "xls") {
            EXPECT_EQ(book.warnings.filter("holds no table").size(), book.warnings.size());
            EXPECT_EQ(book.warnings.size(), sample.fileName().startsWith("results") ? 2 : 0)
                << "chart, macros";
        }
    }
    EXPECT_REFUSED(WorkbookReader::read("", "a.xls"), "empty");
    EXPECT_REFUSED(WorkbookReader::read("a;b;c\n", "a.xls"), "<b>a.xls</b>");
}
