#include "CustomImportCtrl.h"
#include "GasDataCtrl.h"
#include "ImportFixture.h"
#include "SourceRockCtrl.h"
#include "TFileBuffer.h"
#include "VKImportDatasetInterface.h"
#include "VKTreeWidget.h"
#include "WorkbookModel.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QMetaMethod>
#include <QTimer>
#include <QToolButton>

#include <stdexcept>

namespace {

/// Takes the files whose names hold `accepted`.
struct FakeReader : VKImportDatasetInterface {
    explicit FakeReader(const QString& accepts, QAbstractItemModel* model = nullptr)
        : accepted(accepts), table(model) {}
    void prepareForProbe(bool probe) override { probed = probe; }
    bool acceptsFile(TFileBuffer&, const QString& path, QString&) override {
        return probed && path.contains(accepted);
    }
    void setSource(const QString&, const QString& name, const QString&, TFileBuffer* buffer) override {
        EXPECT_EQ(name + buffer->data(), "a.xlsbytes");
        delete buffer;
    }
    QAbstractItemModel* importedModel() override { return table; }

    const QString accepted;
    QAbstractItemModel* const table;
    bool probed = false;
};

QByteArray methodsOf(const QMetaObject& meta) {
    QByteArray names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names += meta.method(i).name() + ' ';
    }
    return names;
}

} // namespace

class ImportModule : public ImportTest {
protected:
    ImportModule() {
        module.createEditor();
        module.readers = [] {
            return QList<VKImportInterface*>{new FakeReader(".xls"), new FakeReader(".xlsx")};
        };
        module.onTable = [this](VKImportDatasetInterface* reader, const QString& path) {
            offers += dynamic_cast<FakeReader*>(reader)->accepted;
            if (path.contains("bad") && offers.last() == ".xls") {
                throw VKError("broken");
            }
        };
    }
    VKTreeWidget& tree() { return *module.editor()->findChild<VKTreeWidget*>(); }
    void import(const QStringList& dropped) {
        emit tree().dataDroppped(dropped);
        emit module.editor()->importAsked();
    }

    QStringList offers;
    TestCtrl module;
};

TEST_F(ImportModule, a_failed_file_goes_to_the_next_reader_and_a_done_one_stays_done) {
    import({"/bad.xls", "", "/<b>&.xls", "/other.txt"});
    const QHash<QString, int> codes{{"/bad.xls", 2}, {"/<b>&.xls", 1}, {"/other.txt", 0}};
    EXPECT_EQ(module.model(), codes) << "a failure does not stop the pass";
    EXPECT_EQ(errors(), QStringList("broken")) << "one unreadable file among others gets no message";
    emit tree().dataDroppped(codes.keys());
    EXPECT_EQ(module.model(), codes);
    offers.clear();
    import({"/bad.xlsx"});
    EXPECT_EQ(module.model().value("/bad.xlsx"), 1) << "the second reader made something of it";
    EXPECT_EQ(offers.count(".xls") + offers.count(".xlsx"), 3) << "and the file that failed came again";
    EXPECT_EQ(informations(), QStringList("File <b>/&lt;b&gt;&amp;.xls</b> was already imported|Le fichier "
                                          "<b>/&lt;b&gt;&amp;.xls</b> a déjà été importé"));
}

TEST_F(ImportModule, what_no_reader_takes_is_rejected_once_and_other_exceptions_pass_through) {
    import({});
    EXPECT_EQ(informations(), QStringList("No files to import|Aucun fichier à importer"));
    import({"/a.txt", "/b.txt"});
    EXPECT_EQ(errors(),
              QStringList("Impossible to import file(s) dropped. Check that every file type is 'xls' "
                          "or 'xlsx' and that file exists|Impossible d'importer le(s) fichier(s) "
                          "déposé(s). Vérifiez si les fichiers sont du type '.xls' ou '.xlsx' et "
                          "qu'ils n'ont pas été suprimés"));
    module.model()[module.model().keys().first()] = VornCtrl::ImportDone;
    import({});
    EXPECT_EQ(errors().size(), 1) << "one that is done counts as handled";
    module.onTable = [](VKImportDatasetInterface*, const QString&) { throw std::runtime_error("no disk"); };
    FakeReader reader("txt");
    module.readers = [&] { return QList<VKImportInterface*>{&reader}; };
    EXPECT_THROW(module.importFiles(), std::runtime_error) << "no failure of a file";
}

TEST_F(ImportModule, a_table_goes_through_the_wizard_into_the_project_or_nowhere) {
    QFile file(folder.filePath("a.xls"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("bytes") == 5 && file.flush());
    Workbook::Book book;
    book.sheets.push_back({"Sheet1", false, {{"TOC", "Sample"}, {1.5, 12.7}, {2.5, "x"}}, {}});
    WorkbookModel workbook(book, "a.xls");
    module.onTable = nullptr;
    module.readers = [&] { return QList<VKImportInterface*>{new FakeReader(".xls", &workbook)}; };
    const auto answer = [](int result) {
        QTimer::singleShot(
            0, [result] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->done(result); });
    };
    answer(QDialog::Rejected);
    import({file.fileName()});
    EXPECT_EQ(module.model().value(file.fileName()), VornCtrl::ImportDone) << "no failure";
    EXPECT_TRUE(project->datasets().isEmpty() && log.entries().empty() && module.processedRows < 0);
    module.model().clear();
    answer(QDialog::Accepted);
    import({file.fileName()});
    EXPECT_EQ(sample("Lab-a.xls").rowNames, QStringList({"Sample 12", "Sample x", "Lab"}));
    EXPECT_EQ(sample("Lab-a.xls", "Lab").columnNames, QStringList({"12.7", "x"}));
    EXPECT_EQ(module.processedRows, 2) << "after it was turned on its side";
    module.readers = [] { return QList<VKImportInterface*>{new FakeReader(".xls")}; };
    module.model()[file.fileName()] = VornCtrl::ImportPending;
    import({});
    EXPECT_EQ(errors(), QStringList("Error while retrieving imported data|Erreur lors de la récupération des "
                                    "données importées"));
}

TEST_F(ImportModule, files_are_listed_by_name_and_status_and_deleted_by_their_icon_alone) {
    const QList<QToolButton*> buttons = module.editor()->findChildren<QToolButton*>();
    QToolButton& button = **std::find_if(buttons.begin(), buttons.end(), [](const QToolButton* each) {
        return each->text() == "Import|Importer";
    });
    EXPECT_FALSE(button.isEnabled());
    emit tree().dataDroppped({});
    EXPECT_TRUE(button.isEnabled()) << "with the first list, be it empty";
    emit tree().dataDroppped({"/one/x.xls", "/two/x.xls"});
    for (const int code : {0, 1, 2, 7}) {
        module.model().insert("/one/x.xls", code);
        module.editor()->refreshFileTree();
        const QTreeWidgetItem& item = *tree().topLevelItem(module.model().keys().indexOf("/one/x.xls"));
        EXPECT_TRUE(item.text(1) == "x.xls" && !item.icon(2).pixmap(16).isNull());
        EXPECT_EQ(item.icon(0).pixmap(16).isNull(), code == 7);
    }
    const QString path = tree().topLevelItem(0)->text(3);
    QStringList deleted;
    QObject::connect(module.editor(), &VornEditor::fileDelete, [&](const QString& gone) {
        deleted += gone + QString::number(tree().topLevelItemCount()); // told before the row is gone
    });
    for (const int column : {0, 1, 2}) {
        emit tree().itemClicked(tree().topLevelItem(0), column);
    }
    EXPECT_EQ(deleted, QStringList(path + "2"));
    EXPECT_TRUE(module.model().size() == 1 && tree().topLevelItemCount() == 1 &&
                !module.model().contains(path));
    emit tree().itemClicked(tree().topLevelItem(0), 2);
    button.click();
    EXPECT_EQ(informations().size(), 1) << "open still, though there are no files to import";
}

TEST_F(ImportModule, closing_asks_the_launcher_and_to_the_end_only_deletions_are_heard) {
    auto* const second = new TestCtrl;
    second->createEditor();
    second->model().insert("/x", 0);
    static_cast<VKRibbonBar*>(second->editor())->closeRequested();
    EXPECT_EQ(host.closed, static_cast<TModuleCtrl*>(second));
    host.closed = nullptr;
    host.onRemoved = [this, &files = second->model()](VornEditor* bar) {
        emit bar->closeRequested();
        emit bar->filesDropped({"/y"});
        emit bar->importAsked();
        emit bar->fileDelete("/x");
        EXPECT_TRUE(files.isEmpty() && host.closed == nullptr && log.entries().empty());
        host.onRemoved = [](VornEditor*) {};
    };
    delete second;
}

TEST_F(ImportModule, texts_titles_and_meta_objects_are_what_the_host_and_users_know) {
    QStringList dropTexts;
    host.onRemoved = [&](VornEditor* bar) {
        dropTexts += bar->dropText();
        EXPECT_TRUE(!bar->modulePixmap().isNull() && bar->getIdForHelp() == 120);
    };
    for (VornCtrl* const each : QList<VornCtrl*>{new GasDataCtrl, new CustomImportCtrl, new SourceRockCtrl}) {
        each->createEditor();
        delete each;
    }
    EXPECT_EQ(host.titles,
              QStringList({"Lab", "Gas data", "Custom import|Import personnalisé", "Source Rock"}));
    EXPECT_EQ(dropTexts,
              QStringList({"Drop here your Excel files containing the Gas data.|Déposer ici vos "
                           "fichiers Excels contenant vos données Gaz.",
                           "Drop here your Excel files containing your data to import.|Déposer ici "
                           "vos fichiers Excels contenant vos données à importer.",
                           "Drop here your Source Rock data:\n - Raw file from RockEval VI (.S00 and "
                           ".R00 files)\n - Excel files|Déposer ici vos données Source Rock :\n - "
                           "Fichiers bruts de RockEval VI (les fichiers .S00 et .R00)\n - Fichiers "
                           "Excel"}));
    EXPECT_EQ(methodsOf(VornEditor::staticMetaObject),
              "closeRequested filesDropped importAsked fileDelete slotDrop "
              "slotImportButton slotItemClicked ");
    EXPECT_EQ(
        methodsOf(VornCtrl::staticMetaObject),
        "slotEditorHasBeenClosed slotFilesDropped slotImportAsked slotDeleteFileFromModel setVornParameters "
        "updateFileStatus ");
    EXPECT_EQ(module.qt_metacast("VKModuleCtrl"), static_cast<VKModuleCtrl*>(&module));
    host.onRemoved = [](VornEditor*) {};
}
