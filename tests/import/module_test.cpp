#include "ImportFixture.h"
#include "ImportRockEvalVI.h"
#include "TFileBuffer.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "VKImportCtrl.h"
#include "VKImportDatasetInterface.h"
#include "VKTreeWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QStringListModel>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>

#include <limits>
#include <stdexcept>

namespace {

/// Takes the files whose names hold `accepted` and delivers what the test says.
struct FakeReader : ImportRockEvalVI {
    explicit FakeReader(const QString& accepts = {}) : accepted(accepts) {}
    void prepareForProbe(bool probe) override { probed = probe; }
    bool acceptsFile(TFileBuffer&, const QString& path, QString&) override {
        return probed && path.contains(accepted);
    }
    void setSource(const QString&, const QString& path, const QString&, TFileBuffer* buffer) override {
        EXPECT_TRUE(path.startsWith("/") && buffer == nullptr);
        ++offers;
        if (path.contains("bad") && accepted == ".xls") {
            throw VKError("broken");
        }
    }
    int dataCount() override { return count; }
    float* firstChannel() override { return first.empty() ? nullptr : first.data(); }
    float* secondChannel() override { return second.empty() ? nullptr : second.data(); }
    QAbstractItemModel* resultsModel() override { return results; }

    static inline int offers = 0;
    const QString accepted;
    bool probed = false;
    int count = 3;
    std::vector<float> first{0, 1, 2.5F};
    std::vector<float> second{10, 1.0F / 3, 7};
    VKDataModelGeneric* results = nullptr;
};

struct NoTable : VKImportDatasetInterface {
    void prepareForProbe(bool) override {}
    bool acceptsFile(TFileBuffer&, const QString&, QString&) override { return true; }
    void setSource(const QString&, const QString&, const QString&, TFileBuffer* buffer) override {
        EXPECT_EQ(buffer->data(), "bytes");
        delete buffer;
    }
    QAbstractItemModel* importedModel() override { return nullptr; }
};

/// Gives each text in both languages at once, "English|French".
struct BothLanguages : QTranslator {
    BothLanguages() { QCoreApplication::installTranslator(this); }
    QString translate(const char*, const char* source, const char* french, int) const override {
        return french == nullptr ? QString() : QString(source) + '|' + french;
    }
    bool isEmpty() const override { return false; }
};

/// A table of the host that tells which rows it was asked to remove.
struct Recording : VKDataModelGeneric {
    Recording(const QStringList& names, const QVector<QVariantList>& rows) {
        createEmpty(names.size(), rows.size());
        for (int column = 0; column < names.size(); ++column) {
            setHeaderData(column, Qt::Horizontal, names[column]);
            for (int row = 0; row < rows.size(); ++row) {
                setData(index(row, column), rows[row].value(column));
            }
        }
    }
    bool removeRows(int row, int count, const QModelIndex& parent) override {
        removed = {row, count};
        return VKDataModelGeneric::removeRows(row, count, parent);
    }
    bool insertColumns(int column, int count, const QModelIndex& parent) override {
        return parent.isValid() && takesColumns && VKDataModelGeneric::insertColumns(column, count, parent);
    }
    void setIdName(const QString& name) { setHeaderData(0, Qt::Vertical, name, 5); }
    QString text(int row, int column) const { return data(index(row, column)).toString(); }
    QString column(int section) const { return headerData(section, Qt::Horizontal).toString(); }

    QList<int> removed;
    bool takesColumns = true;
};

} // namespace

/// A host that lacks readers: this program's definition stands before that of the host's library.
VKImportInterface* VKImportCtrl::getDll(int) {
    return nullptr;
}

class ImportModule : public ImportTest {
protected:
    ImportModule() {
        QObject::connect(dynamic_cast<ApplicationHost*>(ApplicationInterface::returnMe()),
                         &ApplicationHost::projectChanged, [this](int change) { notified += change; });
        module.readers = [] {
            return QList<VKImportInterface*>{new FakeReader(".xls"), new FakeReader(".xlsx")};
        };
    }
    VKTreeWidget& tree() { return *module.editor()->findChild<VKTreeWidget*>(); }
    void import(const QStringList& dropped) {
        emit tree().dataDroppped(dropped);
        emit module.editor()->importAsked();
    }
    /// The text of the VKError; empty if there was none.
    static QString failure(const std::function<void()>& operation) {
        try {
            operation();
        } catch (const VKError& error) {
            return error.text();
        }
        return {};
    }
    /// The name of the dataset is "Source Rock-" and `file`; the rows removed come back.
    QList<int> store(const QStringList& ids, const QString& file) {
        Recording stored(ids, {QVariantList(ids.begin(), ids.end())});
        stored.transpose();
        module.saveDatasets(&stored, file);
        return stored.removed;
    }

    const BothLanguages translator;
    QList<int> notified;
    OpenModule module;
};

TEST_F(ImportModule, a_failed_file_goes_to_the_next_reader_and_a_done_one_stays_done) {
    import({"/bad.xls", "", "/<b>&.xls", "/other.txt"});
    const QHash<QString, int> codes{{"/bad.xls", 2}, {"/<b>&.xls", 1}, {"/other.txt", 0}};
    EXPECT_EQ(module.model(), codes) << "a failure does not stop the pass";
    EXPECT_EQ(errors(), QStringList("broken")) << "one unreadable file among others gets no message";
    emit tree().dataDroppped(codes.keys());
    EXPECT_EQ(module.model(), codes);
    FakeReader::offers = 0;
    import({"/bad.xlsx", "/good.xlsx"});
    EXPECT_EQ(module.model().value("/bad.xlsx"), 1) << "the second reader made something of it";
    EXPECT_EQ(FakeReader::offers, 4) << "the file that failed came again, and a good one to the first alone";
    EXPECT_EQ(informations().filter("already"),
              QStringList("File /<b>&.xls was already imported|Le fichier /<b>&.xls a déjà été "
                          "importé"));
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
    module.onAccepted = [](const QString&) { throw std::runtime_error("no disk"); };
    FakeReader reader("txt");
    module.readers = [&] { return QList<VKImportInterface*>{&reader}; };
    EXPECT_THROW(module.importFiles(), std::runtime_error) << "no failure of a file";
}

TEST_F(ImportModule, missing_readers_and_tables_are_told) {
    const QString missing = "Error while retrieving import information|Erreur lors de la récupération des "
                            "informations d'importation";
    module.readers = nullptr;
    module.model().insert(made("x.xls", "bytes"), 0);
    EXPECT_EQ(failure([this] { module.importFiles(); }), missing) << "leaves the pass";
    EXPECT_EQ(errors(), QStringList(missing)) << "that of the tables; the other is for whom it reaches";
    module.readers = [] { return QList<VKImportInterface*>{new NoTable}; };
    import({});
    EXPECT_EQ(errors().last(),
              "Error while retrieving imported data|Erreur lors de la récupération des données importées");
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
    const auto picture = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
    const char* const pictures[] = {"toolbar/blue_plus", "workflow/action_32", "toolbar/close_project",
                                    "none"};
    for (int code = 0; code < 4; ++code) {
        module.model().insert("/one/x.xls", code);
        module.editor()->refreshFileTree();
        const QTreeWidgetItem& item = *tree().topLevelItem(module.model().keys().indexOf("/one/x.xls"));
        EXPECT_TRUE(item.text(1) == "x.xls" && !item.icon(2).pixmap(16).isNull());
        EXPECT_EQ(picture(item.icon(0)),
                  picture(QIcon(QString(":/Ressources/png/%1.png").arg(pictures[code]))));
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

TEST_F(ImportModule, to_the_end_only_deletions_are_heard) {
    auto second = std::make_unique<OpenModule>();
    second->model().insert("/x", 0);
    const QObject context;
    QObject::connect(dynamic_cast<RibbonHost*>(RibbonInterface::returnMe()), &RibbonHost::removed, &context,
                     [this, &files = second->model()](VKRibbonModuleBar* removed) {
                         auto* const bar = dynamic_cast<VornEditor*>(removed);
                         emit bar->filesDropped({"/y"});
                         emit bar->importAsked();
                         emit bar->fileDelete("/x");
                         EXPECT_TRUE(files.isEmpty() && workbench->log().rowCount() == 0);
                     });
    second.reset();
}

TEST_F(ImportModule, a_signal_that_is_not_whole_is_refused_by_the_step_that_sees_it) {
    using Channel = std::vector<float>;
    const Channel whole{0, 1, 2.5F};
    const QString noSignal = "Error while retrieving S00 imported data|Erreur lors de la récupération des "
                             "données S00 importées";
    const QString notWritten =
        "Error while saving temporary analysis X&amp;Y.S00|Erreur lors de la sauvegarde "
        "temporaire de l'analyse X&amp;Y.S00";
    const struct {
        int count;
        Channel first;
        Channel second;
        QString told;
    } cases[] = {
        {-9999, whole, whole,
         "No data imported from /lab/X&amp;Y.S00|Aucune données importées depuis /lab/X&amp;Y.S00"},
        {0, whole, whole, noSignal},
        {3, {}, whole, noSignal},
        {-2, whole, whole, notWritten}, // no code that is known, so the store is asked
        {3, whole, {0, std::numeric_limits<float>::infinity(), 0}, notWritten},
        {3, whole, {}, notWritten},
    };
    FakeReader reader;
    const auto import = [&] { module.import(&reader, "/lab/X&Y.S00"); };
    for (const auto& each : cases) {
        reader.count = each.count;
        reader.first = each.first;
        reader.second = each.second;
        EXPECT_EQ(failure(import), each.told);
    }
    EXPECT_TRUE(project().analyses().isEmpty() && notified.isEmpty());
    reader.second = whole;
    import();
    import();
    EXPECT_EQ(notified, QList<int>({1, 1})) << "also of what is there already";
    workbench->projects().close();
    EXPECT_EQ(failure(import), notWritten);
}

TEST_F(ImportModule, results_become_a_dataset_of_one_sample_and_replace_it_unasked) {
    FakeReader reader;
    reader.count = -1;
    const auto import = [&] { module.import(&reader, "/lab/X.R00"); };
    EXPECT_EQ(failure(import), "Aucune donnée R00 à importer") << "in every language";
    Recording results({"Value"}, {{"a"}, {1.5}});
    reader.results = &results;
    import();
    results.setData(results.index(1, 0), 2.5);
    import();
    EXPECT_EQ(sample("X.R00").rowNames, QStringList("Source Rock QAQC"));
    EXPECT_EQ(sample("X.R00", "Source Rock QAQC").cells, QVector<QVariant>({"a", 2.5})) << "the second one's";
    EXPECT_EQ(sample("X.R00", "Source Rock QAQC").properties.value(0).name(), "Vorn_parameter");
    EXPECT_EQ(notified, QList<int>({3, 3}));
    results.setData(results.index(1, 0), std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(failure(import), "Error while saving X.R00|Erreur lors de la sauvegarde de X.R00");
}

TEST_F(ImportModule, the_identifying_column_moves_to_the_front_and_names_the_rows) {
    Recording table({"TOC", "S2", "ID"}, {{1, 2, "a"}, {3, 4, ""}, {5, 6, "c"}});
    table.setHeaderData(1, Qt::Vertical, "old");
    table.setIdName("ID");
    module.moveIDColumnAtStart(&table);
    module.moveIDColumnAtStart(&table); // there already
    module.setFirstColAsHeader(&table);
    EXPECT_EQ(table.column(0) + table.column(1) + table.column(2), "IDTOCS2");
    EXPECT_EQ(table.text(0, 0) + table.text(0, 1) + table.text(2, 0) + table.text(2, 2), "a1c6");
    EXPECT_EQ(table.headerData(0, Qt::Vertical).toString() + table.headerData(1, Qt::Vertical).toString(),
              "aold")
        << "an empty cell names nothing";
    EXPECT_EQ(workbench->log().rowCount(), 0);
}

TEST_F(ImportModule, no_column_behind_as_many_as_there_are_rows_is_taken_for_the_identifying_one) {
    Recording table({"A", "B", "ID"}, {{1, 2, 3}, {4, 5, 6}});
    module.moveIDColumnAtStart(&table); // no name, no search
    EXPECT_EQ(workbench->log().rowCount(), 0);
    table.setIdName("ID");
    module.moveIDColumnAtStart(&table);
    EXPECT_EQ(table.column(0), "A");
    EXPECT_EQ(messages(MessageLevel::Debug),
              QStringList("Error while seeking for SampleID column|Erreur lors "
                          "de la recherche de la colonne SampleID"));
    table.setIdName("B");
    table.takesColumns = false;
    EXPECT_EQ(failure([&] { module.moveIDColumnAtStart(&table); }),
              "An error occurred while setting identifying column in the dataset|Erreur lors de la "
              "préparation de la colonne identifiante dans le tableau de données");
}

TEST_F(ImportModule, identifiers_that_are_numbers_lose_fraction_zeros_and_exponent) {
    const QString texts =
        "12.7 -3.9 007 1e3 0.9 A-12 12,7 nan inf 1e40 3000000000 -2147483648 16777217 2147483648";
    store(texts.split(' '), "ids");
    EXPECT_EQ(sample("Source Rock-ids").rowNames.join(' ').remove("Sample "),
              "12 -3 7 1000 0 A-12 12,7 nan inf 1e40 3000000000 -2147483648 16777216 2147483648 Source Rock");
}

TEST_F(ImportModule, each_row_with_an_identifier_becomes_a_sample_and_the_table_one_more) {
    Recording table({"ID", "TOC"}, {{12.7, 1.5}, {"", 9}, {"well <1>", "n/a"}, {3.2, 2}, {3.9, 4}});
    module.saveDatasets(&table, "a&b");
    const QString dataset = "Source Rock-a&b";
    EXPECT_EQ(sample(dataset).rowNames,
              QStringList({"Sample 12", "Sample well <1>", "Sample 3", "Source Rock"}));
    const TechDB::SampleTable first = sample(dataset, "Sample 12");
    EXPECT_EQ(first.rowNames, QStringList({"ID", "TOC"}));
    EXPECT_EQ(first.cells, QVector<QVariant>({12.7, 1.5}));
    EXPECT_EQ(first.properties.value(0).name() + first.properties.value(0).value(), "Vorn_parametertrue");
    EXPECT_EQ(sample(dataset, "Sample 3").columnNames.size(), 2) << "two rows of one identifier";
    EXPECT_EQ(sample(dataset, "Source Rock").columnNames.size(), 5) << "turned on its side";
    EXPECT_EQ(informations(), QStringList("Dataset Source Rock-a&b was successfully imported|L'ensemble de "
                                          "données Source Rock-a&b a été correctement importé"));
    EXPECT_TRUE(errors().isEmpty());
    EXPECT_EQ(store({}, "1"), QList<int>({2, -1}));
    EXPECT_EQ(store({"1", "2", "3", "", ""}, "2"), QList<int>({5, 1})) << "from two behind the samples on";
    EXPECT_EQ(sample("Source Rock-2", "Source Rock").columnNames.size(), 5) << "so none is lost";
}

TEST_F(ImportModule, what_cannot_be_stored_is_told_and_the_other_samples_stay) {
    Recording table({"ID", "TOC"}, {{"good", 1}, {"b&d", std::numeric_limits<double>::quiet_NaN()}});
    EXPECT_EQ(failure([&] { module.saveDatasets(&table, "a&b"); }),
              "An error occurred while saving dataset generated from file: <b>a&amp;b</b>|Une erreur est "
              "survenue lors de la sauvegarde de l'ensemble de données issues du fichier : <b>a&amp;b</b>");
    EXPECT_TRUE(errors().contains("An error occurred while saving sample: Sample b&d|Une erreur est survenue "
                                  "lors de la sauvegarde de l'échantillon : Sample b&d"));
    EXPECT_EQ(sample("Source Rock-a&b").rowNames, QStringList("Sample good"));
    QStringListModel foreign({"1"});
    EXPECT_EQ(
        failure([&] { module.saveDatasets(&foreign, "x"); }),
        "An error occurred while configuring the dataset (Vorn parameters)|Une erreur est survenue lors "
        "de la configuration du dataset (Vorn parameters)");
}

TEST_F(ImportModule, an_existing_dataset_is_overwritten_renamed_or_left_as_the_user_says) {
    store({"old"}, "a");
    QStringList shown;
    QStringList answers; // a button, what a window closes by, or the name that is typed
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        auto* const input = dialog->findChild<QLineEdit*>();
        shown += input == nullptr ? dialog->property("text").toString() : input->text();
        const QString answer = answers.isEmpty() ? QString() : answers.takeFirst();
        if (answer == "close") {
            dialog->close();
        } else if (answer.isEmpty()) {
            dialog->reject();
        } else if (input != nullptr) {
            input->setText(answer);
            dialog->accept();
        }
        for (QAbstractButton* const button : dialog->findChildren<QAbstractButton*>()) {
            if (button->text() == answer) {
                button->click();
            }
        }
    });
    timer.start(1);
    for (const char* const way : {"Cancel import|Annuler l'import", "close", ""}) {
        answers = QStringList{way};
        EXPECT_EQ(failure([this] { store({"new"}, "a"); }),
                  "The import of the dataset <b>Source Rock-a</b> has been canceled by the user|L'import de "
                  "l'ensemble de données <b>Source Rock-a</b> a été annulé par l'utilisateur");
    }
    EXPECT_EQ(shown.size(), 3) << "one question each";
    EXPECT_EQ(sample("Source Rock-a").rowNames, QStringList({"Sample old", "Source Rock"}));
    answers = QStringList{"Overwrite|Écraser"};
    store({"1"}, "a");
    EXPECT_EQ(sample("Source Rock-a").rowNames, QStringList({"Sample 1", "Source Rock"}));
    project().addWell("b&c");
    shown.clear();
    const QString rename = "Rename|Renommer";
    answers = QStringList{rename, "", rename, "b&c", rename, "free"};
    store({"new"}, "a");
    const QString question = "A dataset named <b>%1</b> already exists, do you want to overwrite  it?|Un "
                             "ensemble de données portant "
                             "le nom <b>%1</b> existe déjà. Voulez-vous l'écraser ?";
    EXPECT_EQ(shown,
              QStringList({question.arg("Source Rock-a"), "Source Rock-a", question.arg("Source Rock-a"),
                           "Source Rock-a", question.arg("b&amp;c"), "b&c"}));
    EXPECT_EQ(sample("free").rowNames, QStringList({"Sample new", "Source Rock"}));
}
