#include "ApplicationInterface.h"
#include "ExpectedWarning.h"
#include "ModuleLauncherInterface.h"
#include "ProjectMgrInterface.h"
#include "RibbonInterface.h"
#include "WorkspaceInterface.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Application : ApplicationInterface {
    QWidget* mainWidget() const override { return nullptr; }
    void notifyProjectChanged(int) override {}
    void showHelp(int) override {}
};

struct Launcher : ModuleLauncherInterface {
    void closeModule(TModuleCtrl*) override {}
    void openDataEditor(VKDataModel*) override {}
};

struct Project : ProjectMgrInterface {
    TechDB::TDatabase* projectDatabase() const override { return nullptr; }
    VKDatabaseImport* importDatabase() const override { return nullptr; }
};

struct Ribbon : RibbonInterface {
    void addModuleBar(VKRibbonModuleBar*, bool, bool) override {}
    void removeModuleBar(VKRibbonModuleBar*) override {}
};

struct Workspace : WorkspaceInterface {
    void showEditor(QWidget*) override {}
    void closeEditor(QWidget*) override {}
    void arrangeViewers(int) override {}
};

template <class Implementation>
void lastsAsLongAsTheFirstObject() {
    EXPECT_EQ(Implementation::returnMe(), nullptr);
    auto first = std::make_unique<Implementation>();
    EXPECT_EQ(Implementation::returnMe(), first.get());
    {
        const ExpectedWarning refused("A second ");
        const Implementation second;
        EXPECT_EQ(Implementation::returnMe(), first.get());
    }
    EXPECT_EQ(Implementation::returnMe(), first.get()) << "the refused one's end changes nothing";
    first.reset();
    EXPECT_EQ(Implementation::returnMe(), nullptr);
    const Implementation next;
    EXPECT_EQ(Implementation::returnMe(), &next);
}

} // namespace

TEST(Registration, lasts_as_long_as_the_first_object_and_a_second_is_refused) {
    lastsAsLongAsTheFirstObject<Application>();
    lastsAsLongAsTheFirstObject<Launcher>();
    lastsAsLongAsTheFirstObject<Project>();
    lastsAsLongAsTheFirstObject<Ribbon>();
    lastsAsLongAsTheFirstObject<Workspace>();
}
