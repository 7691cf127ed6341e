#include "ImportFixture.h"

#include "SampleWriter.h"

namespace {

/// Tells which rows it was asked to remove.
struct Recording : VKDataModelGeneric {
    bool removeRows(int row, int count, const QModelIndex& parent) override {
        EXPECT_FALSE(parent.isValid());
        removed += {row, count};
        return VKDataModelGeneric::removeRows(row, count, parent);
    }
    bool insertColumns(int column, int count, const QModelIndex& parent) override {
        EXPECT_TRUE(parent.isValid()) << "the first cell";
        return takesColumns && VKDataModelGeneric::insertColumns(column, count, parent);
    }

    QList<int> removed;
    bool takesColumns = true;
};

QStringList row(const QAbstractItemModel& table, int number) {
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column) {
        cells += table.index(number, column).data().toString();
    }
    return cells;
}

QStringList header(const QAbstractItemModel& table, Qt::Orientation orientation) {
    const int count = orientation == Qt::Horizontal ? table.columnCount() : table.rowCount();
    QStringList names;
    for (int section = 0; section < count; ++section) {
        names += table.headerData(section, orientation).toString();
    }
    return names;
}

constexpr int idNameRole = 5;

} // namespace

class ImportTable : public ImportTest {
protected:
    TestCtrl module;
    Recording table;
};

TEST_F(ImportTable, the_identifying_column_moves_to_the_front_and_names_the_rows) {
    fill(table, {"TOC", "S2", "ID"}, {{1, 2, "a"}, {3, 4, ""}, {5, 6, "c"}});
    table.setHeaderData(1, Qt::Vertical, "old");
    table.setHeaderData(0, Qt::Vertical, "ID", idNameRole);
    module.moveIDColumnAtStart(&table);
    module.setFirstColAsHeader(&table);
    EXPECT_EQ(header(table, Qt::Horizontal), QStringList({"ID", "TOC", "S2"}));
    EXPECT_EQ(row(table, 0), QStringList({"a", "1", "2"}));
    EXPECT_EQ(row(table, 1), QStringList({"", "3", "4"}));
    EXPECT_EQ(header(table, Qt::Vertical), QStringList({"a", "old", "c"}));
    module.moveIDColumnAtStart(&table); // there already
    EXPECT_EQ(header(table, Qt::Horizontal), QStringList({"ID", "TOC", "S2"}));
    EXPECT_TRUE(log.entries().empty());
}

TEST_F(ImportTable, no_column_behind_as_many_as_there_are_rows_is_taken_for_the_identifying_one) {
    fill(table, {"A", "B", "C", "D", "ID"}, {{1, 2, 3, 4, 5}, {}, {}});
    module.moveIDColumnAtStart(&table); // no name, no search
    module.moveIDColumnAtStart(nullptr);
    EXPECT_TRUE(log.entries().empty());
    table.setHeaderData(0, Qt::Vertical, "ID", idNameRole);
    module.moveIDColumnAtStart(&table);
    EXPECT_EQ(header(table, Qt::Horizontal).first(), "A");
    EXPECT_EQ(log.messages(MessageLevel::Debug), QStringList("Error while seeking for SampleID column"));
    table.setHeaderData(0, Qt::Vertical, "id", idNameRole);
    table.setHeaderData(1, Qt::Horizontal, "ID");
    const FrenchTexts french;
    module.moveIDColumnAtStart(&table); // letter by letter
    EXPECT_EQ(log.messages(MessageLevel::Debug).last(), "Erreur lors de la recherche de la colonne SampleID");
    table.setHeaderData(0, Qt::Vertical, "ID", idNameRole);
    table.takesColumns = false;
    EXPECT_EQ(failure([this] { module.moveIDColumnAtStart(&table); }),
              "Erreur lors de la préparation de la colonne identifiante dans le tableau de données");
}

TEST_F(ImportTable, identifiers_that_are_numbers_lose_fraction_zeros_and_exponent) {
    const QVector<QPair<QString, QString>> expected{{"12.7", "12"},
                                                    {"-3.9", "-3"},
                                                    {"007", "7"},
                                                    {"1e3", "1000"},
                                                    {"0.9", "0"},
                                                    {"A-12", "A-12"},
                                                    {"12,7", "12,7"},
                                                    {"", ""},
                                                    {" ", " "},
                                                    {"16777217", "16777216"},
                                                    {"3000000000", "3000000000"},
                                                    {"-2147483648", "-2147483648"},
                                                    {"nan", "nan"},
                                                    {"inf", "inf"},
                                                    {"1e40", "1e40"}};
    for (const auto& [text, id] : expected) {
        EXPECT_EQ(SampleWriter::sampleId(text), id) << text.toStdString();
    }
}

TEST_F(ImportTable, each_row_with_an_identifier_becomes_a_sample_and_the_table_one_more) {
    fill(table, {"ID", "TOC"}, {{12.7, 1.5}, {"", 9}, {"well <1>", "n/a"}, {3.2, 2}, {3.9, 4}});
    module.saveDatasets(&table, "a.xlsx");
    EXPECT_EQ(sampleNames("Lab-a.xlsx"), QStringList({"Sample 12", "Sample well <1>", "Sample 3", "Lab"}));
    const TechDB::SampleTable first = sample("Lab-a.xlsx", "Sample 12");
    EXPECT_EQ(first.rowNames, QStringList({"ID", "TOC"}));
    EXPECT_EQ(first.cells, QVector<QVariant>({12.7, 1.5}));
    ASSERT_EQ(first.properties.size(), 1);
    EXPECT_EQ(first.properties[0].name() + '=' + first.properties[0].value(), "Vorn_parameter=true");
    EXPECT_EQ(sample("Lab-a.xlsx", "Sample 3").columnNames.size(), 2) << "two rows of one identifier";
    const TechDB::SampleTable whole = sample("Lab-a.xlsx", "Lab");
    EXPECT_EQ(whole.rowNames, QStringList({"ID", "TOC"})) << "turned on its side";
    EXPECT_EQ(whole.columnNames.size(), 5);
    EXPECT_EQ(whole.properties.size(), 1);
    EXPECT_EQ(table.removed, QList<int>({6, 0})) << "four samples of five rows";
    EXPECT_EQ(informations(), QStringList("Dataset <b>Lab-a.xlsx</b> was successfully imported"));
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(ImportTable, rows_are_removed_from_two_behind_the_samples_on) {
    const auto removedOf = [this](const QStringList& ids) {
        Recording model;
        QVector<QVariantList> rows;
        for (const QString& id : ids) {
            rows.append({id, 1});
        }
        fill(model, {"ID", "TOC"}, rows);
        module.saveDatasets(&model, QString::number(ids.size()) + ids.join(""));
        return model.removed;
    };
    EXPECT_EQ(removedOf({}), QList<int>({2, -1}));
    EXPECT_EQ(removedOf({"1", "2", "3", "", ""}), QList<int>({5, 1}));
    EXPECT_EQ(removedOf({"1", "2"}), QList<int>({4, -1}));
    EXPECT_EQ(removedOf({"1", "", "", "", ""}), QList<int>({3, 3})) << "and three the table can't remove";
    EXPECT_EQ(sample("Lab-51", "Lab").columnNames.size(), 5);
    EXPECT_EQ(removedOf({"1", "", "", "", "", ""}), QList<int>({3, 4}));
}

TEST_F(ImportTable, what_cannot_be_stored_is_told_and_the_other_samples_stay) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    fill(table, {"ID", "TOC"}, {{"good", 1}, {"b&d", nan}});
    const QString whole = failure([this] { module.saveDatasets(&table, "a & b.xlsx"); });
    EXPECT_EQ(whole, "An error occurred while saving dataset generated from file: <b>a &amp; b.xlsx</b>");
    EXPECT_TRUE(errors().contains("An error occurred while saving sample: <b>Sample b&amp;d</b>"));
    EXPECT_EQ(sampleNames("Lab-a & b.xlsx"), QStringList("Sample good"));
    EXPECT_TRUE(informations().isEmpty());

    EXPECT_EQ(failure([this] { module.saveDatasets(nullptr, "x"); }), "Error while retrieving imported data");
    struct Foreign : QAbstractTableModel {
        int rowCount(const QModelIndex&) const override { return 1; }
        int columnCount(const QModelIndex&) const override { return 1; }
        QVariant data(const QModelIndex&, int) const override { return 1; }
    } other;
    EXPECT_EQ(failure([&] { module.saveDatasets(&other, "x"); }),
              "An error occurred while configuring the dataset (Vorn parameters)");
}

TEST_F(ImportTable, storing_speaks_french_when_the_application_does) {
    const FrenchTexts french;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    fill(table, {"ID", "TOC"}, {{"1", nan}});
    EXPECT_EQ(failure([this] { module.saveDatasets(&table, "a"); }),
              "Une erreur est survenue lors de la sauvegarde de l'ensemble de données issues du fichier : "
              "<b>a</b>");
    EXPECT_TRUE(errors().contains(
        "Une erreur est survenue lors de la sauvegarde de l'échantillon : <b>Sample 1</b>"));
    EXPECT_EQ(failure([this] { module.saveDatasets(nullptr, "x"); }),
              "Erreur lors de la récupération des données importées");
    Recording good;
    fill(good, {"ID"}, {{"1"}});
    module.saveDatasets(&good, "b");
    EXPECT_EQ(informations(), QStringList("L'ensemble de données <b>Lab-b</b> a été correctement importé"));
}
