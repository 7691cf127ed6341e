#include "ExpectedWarning.h"
#include "HelpInterface.h"
#include "Interfaces.h"
#include "MessageCollector.h"
#include "ModuleLauncherInterface.h"
#include "VKDataModelGeneric.h"
#include "VKModuleCtrl.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QPointer>

#include <memory>

namespace {

class Module : public QObject, public VKModuleCtrl {
    Q_OBJECT

public:
    Module() : VKModuleCtrl("vkVorn") {}

    bool save() override { return saveWorks; }
    bool hasSomethingToSave() const override { return dirty; }
    int getIdForHelp() const override { return 7; }
    void initActions() override {
        addAction(5, std::make_unique<QAction>("five"));
        addAction(2, std::make_unique<QAction>("two"));
        addAction(2, std::make_unique<QAction>("two again"));
    }
    TDataModel* initDataEditor() override { return hasTable ? new VKDataModelGeneric : nullptr; }

    bool dirty = false;
    bool saveWorks = false;
    bool hasTable = true;
};

struct Launcher : ModuleLauncherInterface {
    void closeModule(TModuleCtrl* module) override { closed = module; }
    void openDataEditor(VKDataModel* model) override { table.reset(model); }

    TModuleCtrl* closed = nullptr;
    std::unique_ptr<VKDataModel> table;
};

struct Page : HelpInterface {
    int getIdForHelp() const override { return 124; }
};

class ModuleCtrl : public testing::Test {
protected:
    ModuleCtrl() { MessageLoggerInterface::setDefaultLogger(&log); }

    MessageCollector log;
    std::unique_ptr<Module> module = std::make_unique<Module>();
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

TEST_F(ModuleCtrl, the_meta_object_gives_the_controller_part_and_not_the_objects_start) {
    EXPECT_EQ(module->qt_metacast("VKModuleCtrl"), static_cast<VKModuleCtrl*>(module.get()));
    EXPECT_NE(module->qt_metacast("VKModuleCtrl"), static_cast<void*>(module.get()));
    EXPECT_EQ(module->key(), "vkVorn");
}

TEST_F(ModuleCtrl, asks_the_launcher_to_end_it_and_to_take_its_table_if_there_is_one) {
    module->close();
    module->showDataEditor();
    Launcher launcher;
    module->close();
    EXPECT_EQ(launcher.closed, static_cast<TModuleCtrl*>(module.get()));
    module->actionTriggered(ModuleObserver::dataEditorAction);
    EXPECT_NE(launcher.table, nullptr);
    EXPECT_TRUE(log.entries().empty());
    launcher.table.reset();
    module->hasTable = false;
    module->actionTriggered(ModuleObserver::dataEditorAction);
    EXPECT_EQ(launcher.table, nullptr);
    EXPECT_EQ(log.messages(MessageLevel::Information).size(), 1);
}

TEST_F(ModuleCtrl, opens_the_bars_page_before_its_own_if_there_is_an_application) {
    module->help();
    Application application;
    const Page page;
    module->help();
    module->attachHelp(&page);
    module->actionTriggered(ModuleObserver::helpAction);
    module->attachHelp(nullptr);
    module->help();
    EXPECT_EQ(application.pages, QList<int>({7, 124, 7}));
}

TEST_F(ModuleCtrl, stays_open_and_tells_it_only_if_saving_fails) {
    EXPECT_TRUE(module->SaveRequested()) << "nothing to save";
    module->genericSave();
    module->dirty = module->saveWorks = true;
    EXPECT_TRUE(module->SaveRequested());
    EXPECT_TRUE(log.entries().empty());
    module->saveWorks = false;
    EXPECT_FALSE(module->SaveRequested());
    module->actionTriggered(ModuleObserver::saveAction);
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 1);
}

TEST_F(ModuleCtrl, makes_its_own_actions_once_and_enables_them_or_the_bars) {
    QAction table;
    module->attachAction(ModuleObserver::dataEditorAction, &table);
    EXPECT_FALSE(table.isEnabled());
    module->setActionEnabled(ModuleObserver::dataEditorAction, true);
    module->setActionEnabled(5, false);
    module->setActionEnabled(1234, true);
    EXPECT_TRUE(table.isEnabled());
    EXPECT_EQ(module->getActionList().keys(), QList<int>({2, 5}));
    EXPECT_EQ(module->getActionList().value(2)->text(), "two again");
    const QPointer<QAction> five = module->getActionList().value(5);
    EXPECT_FALSE(five->isEnabled());
    module.reset();
    EXPECT_TRUE(five.isNull());
}

TEST_F(ModuleCtrl, hears_an_attached_action_once_whichever_of_them_goes_first) {
    Launcher launcher;
    QAction table;
    module->setActionEnabled(ModuleObserver::dataEditorAction, true);
    {
        QAction gone;
        module->attachAction(ModuleObserver::dataEditorAction, &gone);
    }
    module->setActionEnabled(ModuleObserver::dataEditorAction, true);
    for (int i = 0; i < 2; ++i) {
        module->attachAction(ModuleObserver::dataEditorAction, &table);
    }
    EXPECT_TRUE(table.isEnabled()) << "the choice outlives the action it was made for";
    module->hasTable = false;
    table.trigger();
    EXPECT_EQ(log.entries().size(), 1U);
    module->attachAction(ModuleObserver::dataEditorAction, nullptr);
    table.trigger();
    EXPECT_EQ(log.entries().size(), 1U);
    module->attachAction(ModuleObserver::dataEditorAction, &table);
    module.reset();
    table.trigger();
}

#include "modulectrl_test.moc"
