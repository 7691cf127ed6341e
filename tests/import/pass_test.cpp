#include "ImportFixture.h"

#include <stdexcept>

namespace {

/// What is neither a reader of tables nor one of curves.
struct OddReader : VKImportInterface {
    void prepareForProbe(bool) override {}
    bool acceptsFile(TFileBuffer&, const QString&, QString&) override { return true; }
    void setSource(const QString&, const QString&, const QString&, TFileBuffer*) override {}
};

const char* const rejection = "Impossible to import file(s) dropped. Check that every file type is 'xls' or "
                              "'xlsx' and that file exists";

} // namespace

class ImportPass : public ImportTest {
protected:
    ImportPass() {
        module.createEditor();
        module.readers = [this] {
            return QList<VKImportInterface*>{new FakeReader(".xls", calls), new FakeReader(".xlsx", calls)};
        };
        module.onTable = [](VKImportDatasetInterface*, const QString&) {};
    }
    void drop(const QStringList& paths) { emit editorOf(module).filesDropped(paths); }
    void import() { emit editorOf(module).importAsked(); }
    static QString tag(VKImportDatasetInterface* reader) {
        return dynamic_cast<FakeReader*>(reader)->accepted;
    }

    QStringList calls;
    TestCtrl module;
};

TEST_F(ImportPass, a_failed_file_is_offered_to_the_next_reader_which_may_still_take_it) {
    module.onTable = [](VKImportDatasetInterface* reader, const QString&) {
        if (tag(reader) == ".xls") {
            throw VKError("broken");
        }
    };
    drop({"/a/x.xlsx"});
    import();
    EXPECT_EQ(module.model().value("/a/x.xlsx"), VornCtrl::ImportDone);
    EXPECT_EQ(errors(), QStringList("broken"));
    EXPECT_EQ(calls, QStringList({"probe .xls", "probe .xlsx", "deleted .xls", "deleted .xlsx"}));
}

TEST_F(ImportPass, files_go_from_pending_to_failed_to_done_and_stay_there) {
    bool broken = true;
    module.onTable = [&broken](VKImportDatasetInterface*, const QString& path) {
        if (broken && path == "/bad.xls") {
            throw VKError("broken");
        }
    };
    drop({"/bad.xls", "", "/good.xls", "/other.txt"});
    ASSERT_EQ(module.model().size(), 3);
    import();
    EXPECT_EQ(module.model().value("/bad.xls"), VornCtrl::ImportFailed)
        << "though the next file came through";
    EXPECT_EQ(module.model().value("/good.xls"), VornCtrl::ImportDone);
    EXPECT_EQ(module.model().value("/other.txt"), VornCtrl::ImportPending);
    EXPECT_EQ(errors(), QStringList("broken")) << "one unreadable file among others gets no message";

    drop({"/bad.xls", "/good.xls"});
    EXPECT_EQ(module.model().value("/bad.xls"), VornCtrl::ImportFailed);
    EXPECT_EQ(module.model().value("/good.xls"), VornCtrl::ImportDone);
    broken = false;
    import();
    EXPECT_EQ(module.model().value("/bad.xls"), VornCtrl::ImportDone);
    EXPECT_EQ(informations(), QStringList("File <b>/good.xls</b> was already imported"));

    log.clear();
    import();
    EXPECT_EQ(informations().size(), 2);
    EXPECT_TRUE(errors().isEmpty()) << "what was imported before counts as handled";
    module.updateFileStatus("/unknown", VornCtrl::ImportDone);
    EXPECT_EQ(module.model().size(), 3);
}

TEST_F(ImportPass, files_that_no_reader_takes_are_rejected_once_for_all) {
    import();
    EXPECT_EQ(informations(), QStringList("No files to import"));
    drop({"/a.txt", "/b.<i>"});
    import();
    EXPECT_EQ(errors(), QStringList(rejection));
    EXPECT_EQ(module.model().values(), QList<int>({0, 0}));
    module.readers = [] { return QList<VKImportInterface*>(); };
    import();
    EXPECT_EQ(errors(), QStringList({rejection, rejection}));
}

TEST_F(ImportPass, a_reader_of_nothing_known_fails_the_file) {
    module.readers = [] { return QList<VKImportInterface*>{new OddReader}; };
    drop({"/a & b"});
    import();
    EXPECT_EQ(errors(), QStringList("Import canceled"));
    EXPECT_EQ(module.model().value("/a & b"), VornCtrl::ImportFailed);
}

TEST_F(ImportPass, any_other_exception_leaves_the_pass_and_the_file_as_it_was) {
    module.onTable = [](VKImportDatasetInterface*, const QString&) { throw std::runtime_error("no disk"); };
    drop({"/x.xls"});
    EXPECT_THROW(module.importFiles(), std::runtime_error);
    EXPECT_EQ(module.model().value("/x.xls"), VornCtrl::ImportPending);
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(ImportPass, messages_are_french_when_the_application_is_and_names_are_no_markup) {
    const FrenchTexts french;
    import();
    drop({"/<b>&.xls"});
    import();
    import();
    drop({"/y"});
    module.model().remove("/<b>&.xls");
    import();
    EXPECT_EQ(informations(), QStringList({"Aucun fichier à importer",
                                           "Le fichier <b>/&lt;b&gt;&amp;.xls</b> a déjà été importé"}));
    EXPECT_EQ(
        errors(),
        QStringList("Impossible d'importer le(s) fichier(s) déposé(s). Vérifiez si les fichiers sont du "
                    "type '.xls' ou '.xlsx' et qu'ils n'ont pas été suprimés"));
}
