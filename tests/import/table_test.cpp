#include "ImportFixture.h"
#include "SampleWriter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QStringListModel>
#include <QTimer>

#include <limits>

namespace {

/// Tells which rows it was asked to remove.
struct Recording : VKDataModelGeneric {
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

class ImportTable : public ImportTest {
protected:
    /// The name of the dataset is "Lab-" and `file`; the rows removed come back.
    QList<int> store(const QStringList& ids, const QString& file) {
        Recording stored;
        fill(stored, ids, {QVariantList(ids.begin(), ids.end())});
        stored.transpose();
        module.saveDatasets(&stored, file);
        return stored.removed;
    }

    TestCtrl module;
    Recording table;
};

TEST_F(ImportTable, the_identifying_column_moves_to_the_front_and_names_the_rows) {
    fill(table, {"TOC", "S2", "ID"}, {{1, 2, "a"}, {3, 4, ""}, {5, 6, "c"}});
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
    EXPECT_TRUE(log.entries().empty());
}

TEST_F(ImportTable, no_column_behind_as_many_as_there_are_rows_is_taken_for_the_identifying_one) {
    fill(table, {"A", "B", "ID"}, {{1, 2, 3}, {4, 5, 6}});
    module.moveIDColumnAtStart(&table); // no name, no search
    EXPECT_TRUE(log.entries().empty());
    table.setIdName("ID");
    module.moveIDColumnAtStart(&table);
    EXPECT_EQ(table.column(0), "A");
    EXPECT_EQ(log.messages(MessageLevel::Debug), QStringList("Error while seeking for SampleID column|Erreur "
                                                             "lors de la recherche de la colonne SampleID"));
    table.setIdName("B");
    table.takesColumns = false;
    EXPECT_EQ(failure([this] { module.moveIDColumnAtStart(&table); }),
              "An error occurred while setting identifying column in the dataset|Erreur lors de la "
              "préparation de la colonne identifiante dans le tableau de données");
}

TEST_F(ImportTable, identifiers_that_are_numbers_lose_fraction_zeros_and_exponent) {
    const QString texts = "12.7 -3.9 007 1e3 0.9 A-12 12,7 nan inf 1e40 3000000000 -2147483648 16777217";
    QStringList ids;
    for (const QString& text : texts.split(' ')) {
        ids += SampleWriter::sampleId(text);
    }
    EXPECT_EQ(ids.join(' '), "12 -3 7 1000 0 A-12 12,7 nan inf 1e40 3000000000 -2147483648 16777216");
}

TEST_F(ImportTable, each_row_with_an_identifier_becomes_a_sample_and_the_table_one_more) {
    fill(table, {"ID", "TOC"}, {{12.7, 1.5}, {"", 9}, {"well <1>", "n/a"}, {3.2, 2}, {3.9, 4}});
    module.saveDatasets(&table, "a&b");
    EXPECT_EQ(sample("Lab-a&b").rowNames, QStringList({"Sample 12", "Sample well <1>", "Sample 3", "Lab"}));
    const TechDB::SampleTable first = sample("Lab-a&b", "Sample 12");
    EXPECT_EQ(first.rowNames, QStringList({"ID", "TOC"}));
    EXPECT_EQ(first.cells, QVector<QVariant>({12.7, 1.5}));
    EXPECT_EQ(first.properties.value(0).name() + first.properties.value(0).value(), "Vorn_parametertrue");
    EXPECT_EQ(sample("Lab-a&b", "Sample 3").columnNames.size(), 2) << "two rows of one identifier";
    EXPECT_EQ(sample("Lab-a&b", "Lab").columnNames.size(), 5) << "turned on its side";
    EXPECT_EQ(informations(),
              QStringList("Dataset <b>Lab-a&amp;b</b> was successfully imported|L'ensemble de "
                          "données <b>Lab-a&amp;b</b> a été correctement importé"));
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(ImportTable, rows_are_removed_from_two_behind_the_samples_on_and_none_is_lost) {
    EXPECT_EQ(store({}, "1"), QList<int>({2, -1}));
    EXPECT_EQ(store({"1", "2", "3", "", ""}, "2"), QList<int>({5, 1}));
    EXPECT_EQ(sample("Lab-2", "Lab").columnNames.size(), 5);
}

TEST_F(ImportTable, what_cannot_be_stored_is_told_and_the_other_samples_stay) {
    fill(table, {"ID", "TOC"}, {{"good", 1}, {"b&d", std::numeric_limits<double>::quiet_NaN()}});
    EXPECT_EQ(failure([this] { module.saveDatasets(&table, "a&b"); }),
              "An error occurred while saving dataset generated from file: <b>a&amp;b</b>|Une erreur est "
              "survenue lors de la sauvegarde de l'ensemble de données issues du fichier : <b>a&amp;b</b>");
    EXPECT_TRUE(errors().contains(
        "An error occurred while saving sample: <b>Sample b&amp;d</b>|Une erreur est survenue lors de la "
        "sauvegarde de l'échantillon : <b>Sample b&amp;d</b>"));
    EXPECT_EQ(sample("Lab-a&b").rowNames, QStringList("Sample good"));
    QStringListModel foreign({"1"});
    EXPECT_EQ(
        failure([&] { module.saveDatasets(&foreign, "x"); }),
        "An error occurred while configuring the dataset (Vorn parameters)|Une erreur est survenue lors "
        "de la configuration du dataset (Vorn parameters)");
}

TEST_F(ImportTable, an_existing_dataset_is_overwritten_renamed_or_left_as_the_user_says) {
    store({"old"}, "a");
    const QString inputTexts =
        "Dataset name:|Nom de l'ensemble de données:Type the dataset name to be saved|Entrez "
        "l'ensemble de données du dataset à sauvegarder";
    QStringList shown;
    QStringList answers;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        auto* const input = dialog->findChild<QLineEdit*>();
        shown += dialog->windowTitle() + '/' +
                 (input == nullptr ? dialog->property("text").toString() : input->text());
        const QString answer = answers.isEmpty() ? QString() : answers.takeFirst();
        const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
        const auto named = [&](const QAbstractButton* each) { return each->text() == answer; };
        if (const auto button = std::find_if(buttons.begin(), buttons.end(), named);
            button != buttons.end()) {
            (*button)->click();
        } else if (input == nullptr || answer.isEmpty()) {
            answer.isEmpty() ? dialog->reject() : static_cast<void>(dialog->close());
        } else {
            EXPECT_EQ(dialog->findChild<QLabel*>()->text() + input->toolTip(), inputTexts);
            input->setText(answer);
            dialog->accept();
        }
    });
    timer.start(1);
    for (const char* const way : {"Cancel import|Annuler l'import", "close", ""}) {
        answers = QStringList{way};
        EXPECT_EQ(
            failure([this] { store({"new"}, "a"); }),
            "The import of the dataset <b>Lab-a</b> has been canceled by the user|L'import de l'ensemble "
            "de données <b>Lab-a</b> a été annulé par l'utilisateur");
    }
    EXPECT_EQ(shown.size(), 3) << "one question each";
    EXPECT_EQ(sample("Lab-a").rowNames, QStringList({"Sample old", "Lab"}));
    answers = QStringList{"Overwrite|Écraser"};
    store({"1"}, "a");
    EXPECT_EQ(sample("Lab-a").rowNames, QStringList({"Sample 1", "Lab"}));
    project->addWell("b&c");
    shown.clear();
    const QString rename = "Rename|Renommer";
    answers = QStringList{rename, "", rename, "b&c", rename, "free"};
    store({"new"}, "a");
    const QString question =
        "Vorn Import module|Module d'import Vorn/A dataset named <b>%1</b> already exists, do you want to "
        "overwrite "
        " it?|Un ensemble de données portant le nom <b>%1</b> existe déjà. Voulez-vous l'écraser ?";
    const QString typing =
        "Defining of the dataset name to be saved|Définition du nom de l'ensemble de données à "
        "sauvegarder/%1";
    EXPECT_EQ(shown, QStringList({question.arg("Lab-a"), typing.arg("Lab-a"), question.arg("Lab-a"),
                                  typing.arg("Lab-a"), question.arg("b&amp;c"), typing.arg("b&c")}));
    EXPECT_EQ(sample("free").rowNames, QStringList({"Sample new", "Lab"}));
}
