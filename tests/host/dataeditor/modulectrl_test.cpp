#include "ApplicationInterface.h"
#include "HelpInterface.h"
#include "MessageCollector.h"
#include "ModuleLauncherInterface.h"
#include "VKDataModelGeneric.h"
#include "VKModuleCtrl.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QObject>

#include <memory>

namespace {

class Module : public QObject, public VKModuleCtrl {
    Q_OBJECT

public:
    Module() : VKModuleCtrl("vkVorn") {}

    bool save() override { return false; }
    bool hasSomethingToSave() const override { return dirty; }
    int getIdForHelp() const override { return 7; }
    void initActions() override { addAction(5, std::make_unique<QAction>()); }
    TDataModel* initDataEditor() override { return hasTable ? new VKDataModelGeneric : nullptr; }

    bool dirty = false;
    bool hasTable = true;
};

struct Launcher : ModuleLauncherInterface {
    void closeModule(TModuleCtrl* module) override { closed = module; }
    void openDataEditor(VKDataModel* model) override { table.reset(model); }

    TModuleCtrl* closed = nullptr;
    std::unique_ptr<VKDataModel> table;
};

struct Application : ApplicationInterface {
    QWidget* mainWidget() const override { return nullptr; }
    void notifyProjectChanged(int) override {}
    void showHelp(int helpId) override { pages += helpId; }

    QList<int> pages;
};

struct Page : HelpInterface {
    int getIdForHelp() const override { return 124; }
};

class ModuleCtrl : public testing::Test {
protected:
    ModuleCtrl() { MessageLoggerInterface::setDefaultLogger(&log); }

    MessageCollector log;
    Module module;
};

} // namespace

TEST_F(ModuleCtrl, the_meta_object_gives_the_controller_part_and_not_the_objects_start) {
    EXPECT_EQ(module.qt_metacast("VKModuleCtrl"), static_cast<VKModuleCtrl*>(&module));
    EXPECT_NE(module.qt_metacast("VKModuleCtrl"), static_cast<void*>(&module));
    EXPECT_EQ(module.key(), "vkVorn");
}

TEST_F(ModuleCtrl, asks_the_launcher_to_end_it_and_to_take_its_table) {
    Launcher launcher;
    module.close();
    EXPECT_EQ(launcher.closed, static_cast<TModuleCtrl*>(&module));
    module.actionTriggered(ModuleObserver::dataEditorAction);
    EXPECT_NE(launcher.table, nullptr);
    launcher.table.reset();
    module.hasTable = false;
    module.actionTriggered(ModuleObserver::dataEditorAction);
    EXPECT_EQ(launcher.table, nullptr);
    EXPECT_EQ(log.messages(MessageLevel::Information).size(), 1);
}

TEST_F(ModuleCtrl, opens_the_bars_page_before_its_own) {
    Application application;
    const Page page;
    module.help();
    module.attachHelp(&page);
    module.actionTriggered(ModuleObserver::helpAction);
    module.attachHelp(nullptr);
    module.help();
    EXPECT_EQ(application.pages, QList<int>({7, 124, 7}));
}

TEST_F(ModuleCtrl, tells_a_failed_save_and_only_that) {
    module.genericSave();
    EXPECT_TRUE(log.entries().empty());
    module.dirty = true;
    module.actionTriggered(ModuleObserver::saveAction);
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 1);
}

TEST_F(ModuleCtrl, enables_its_own_action_or_the_bars) {
    QAction table;
    module.attachAction(ModuleObserver::dataEditorAction, &table);
    module.setActionEnabled(ModuleObserver::dataEditorAction, true);
    module.setActionEnabled(5, false);
    module.setActionEnabled(1234, true);
    EXPECT_TRUE(table.isEnabled());
    EXPECT_FALSE(module.getActionList().value(5)->isEnabled());
}

TEST_F(ModuleCtrl, without_an_application_nothing_happens) {
    module.close();
    module.showDataEditor();
    module.help();
    EXPECT_TRUE(log.entries().empty());
}

#include "modulectrl_test.moc"
