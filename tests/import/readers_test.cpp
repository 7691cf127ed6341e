#include "ImportFixture.h"

#include "SourceRockCtrl.h"
#include "VKImportCtrl.h"

// A host that lacks readers: this program's own definition stands before that of the host's library.
namespace {
QList<int> asked;
}

VKImportInterface* VKImportCtrl::getDll(int number) {
    asked += number;
    return nullptr;
}

namespace {

template <class Module>
struct Opened : Module {
    using Module::importFiles;
    using Module::model;

    Opened() {
        this->createEditor();
        model().insert("/x.xls", 0);
    }
};

struct Plain : TestCtrl {
    void retrieveDLLImport(VKImportCtrl& ctrl, QList<VKImportInterface*>& list) override {
        VornCtrl::retrieveDLLImport(ctrl, list);
    }
};

} // namespace

class MissingReaders : public ImportTest {
protected:
    MissingReaders() { asked.clear(); }
};

TEST_F(MissingReaders, without_the_one_of_tables_the_pass_goes_on_and_finds_nothing) {
    Opened<Plain> module;
    module.importFiles();
    EXPECT_EQ(asked, QList<int>({24}));
    ASSERT_EQ(errors().size(), 2);
    EXPECT_EQ(errors()[0], "Error while retrieving import information");
    EXPECT_TRUE(errors()[1].startsWith("Impossible to import file(s) dropped."));
}

TEST_F(MissingReaders, without_the_one_of_raw_files_the_failure_leaves_the_pass) {
    Opened<SourceRockCtrl> module;
    EXPECT_EQ(failure([&] { module.importFiles(); }), "Error while retrieving import information");
    EXPECT_EQ(asked, QList<int>({24, 25}));
    EXPECT_EQ(errors().size(), 1) << "that of the tables; this one is for whom it reaches";
    EXPECT_EQ(module.model().value("/x.xls"), 0);
    const FrenchTexts french;
    EXPECT_EQ(failure([&] { module.importFiles(); }),
              "Erreur lors de la récupération des informations d'importation");
    EXPECT_EQ(errors().last(), "Erreur lors de la récupération des informations d'importation");
}
