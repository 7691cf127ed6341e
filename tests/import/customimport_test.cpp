#include "CustomImportCtrl.h"
#include "ImportFixture.h"
#include "TDescriptionVorn.h"
#include "TVornCompoundPrivate.h"
#include "VKDatabaseVornMGR.h"

namespace {

struct TestCustom : CustomImportCtrl {
    using CustomImportCtrl::getCompoundID, CustomImportCtrl::getNoneEIC, CustomImportCtrl::specificProcess;
};

} // namespace

class CustomImport : public ImportTest {
protected:
    CustomImport() { catalogue.setPlace(folder.filePath("catalogue")); }
    ~CustomImport() override { catalogue.setPlace({}); }

    /// As after the import of a table with these columns.
    void process(const QStringList& names) {
        VKDataModelGeneric table;
        fill(table, names, {});
        table.transpose();
        module.specificProcess(&table);
    }

    VKDatabaseVornMGR& catalogue = *VKDatabaseVornMGR::getInstance();
    TestCustom module;
};

TEST_F(CustomImport, unknown_columns_become_parameters_and_are_known_the_next_time) {
    const QStringList builtIn = TDescriptionVorn().getPropertiesLabels(true).values();
    process(builtIn);
    EXPECT_TRUE(log.entries().empty()) << "what the application knows by itself is passed over in silence";
    TechDB::TVornCompoundPrivate compound("0");
    compound.setCompoundName("My ratio");
    const QString id = catalogue.db(9)->addCompound(&compound, "-9999")->recordId();
    EXPECT_EQ(module.getCompoundID("My ratio"), id);
    process({"My ratio", "", builtIn.first(), "b<1>"});
    const QString names = "<b>My ratio</b>, <b>b&lt;1&gt;</b>";
    EXPECT_EQ(
        informations(),
        QStringList(QString("Parameter(s) <b>%1</b> were(was) successfully added to  Vorn database|Le(s) "
                            "paramètre(s) <b>%1</b> ont été correctement ajouté(s) en base de données Vorn")
                        .arg(names)));
    EXPECT_NE(catalogue.db(9)->findPair(id, module.getNoneEIC()), nullptr) << "of the compound there was";
    process({"My ratio", "new", "b<1>"});
    EXPECT_EQ(
        log.messages(MessageLevel::Warning),
        QStringList(QString("Parameter(s) <b>%1</b> already exist(s) in Vorn database|Le(s) paramètre(s) "
                            "<b>%1</b> existe(nt) déjà en base de données Vorn ")
                        .arg(names)));
    EXPECT_TRUE(informations().size() == 2 && errors().isEmpty());
}

TEST_F(CustomImport, without_a_catalogue_or_a_table_only_errors_are_told) {
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    catalogue.setPlace(file.fileName() + "/catalogue"); // below a file, so it can't be made
    EXPECT_EQ(module.getNoneEIC() + module.getCompoundID("x"), "-1-1");
    process({"x"});
    EXPECT_EQ(errors().last(), "An internal error occurred: impossible to create pseudo-compounds|Une erreur "
                               "interne est survenue : impossible de créer des pseudo-composés");
    module.specificProcess(nullptr);
    EXPECT_EQ(errors().last(),
              "Impossible to retrieve imported data during pseudo-compounds creation|Impossible de récupérer "
              "les données importées lors de la création des pseudo-composés");
}
