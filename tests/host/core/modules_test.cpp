#include "ModuleObserver.h"
#include "TModuleCtrl.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QPointer>
#include <QStringList>

namespace {

class Observer : public ModuleObserver {
public:
    void actionTriggered(int number) override {
        numbers += number;
        ModuleObserver::actionTriggered(number);
    }
    void showDataEditor() override { calls += "table"; }
    void genericSave() override { calls += "save"; }
    void help() override { calls += "help"; }

    QList<int> numbers;
    QStringList calls;
};

class Module : public TModuleCtrl {
public:
    bool save() override {
        ++saves;
        return saveWorks;
    }
    bool hasSomethingToSave() const override { return dirty; }
    void initActions() override {
        ++inits;
        addAction(5, std::make_unique<QAction>("five"));
        addAction(2, std::make_unique<QAction>("two"));
        addAction(2, std::make_unique<QAction>("two again"));
    }

    int inits = 0;
    int saves = 0;
    bool dirty = false;
    bool saveWorks = true;
};

} // namespace

TEST(Modules, generic_actions_reach_their_operation_and_others_only_their_number) {
    Observer observer;
    for (const int number : {97, 98, 99, 5, -1}) {
        observer.actionTriggered(number);
    }
    EXPECT_EQ(observer.calls, QStringList({"save", "table", "help"}));
}

TEST(Modules, an_attached_action_is_barred_until_it_is_enabled_and_is_heard_once) {
    Observer observer;
    QAction table;
    observer.attachAction(ModuleObserver::dataEditorAction, &table);
    observer.attachAction(ModuleObserver::dataEditorAction, &table);
    EXPECT_FALSE(table.isEnabled());
    observer.setActionEnabled(98, true);
    EXPECT_TRUE(table.isEnabled());
    table.trigger();
    EXPECT_EQ(observer.numbers, QList<int>({98}));

    QAction other;
    observer.attachAction(98, &other);
    EXPECT_TRUE(other.isEnabled()) << "the choice outlives the action it was made for";
    table.trigger();
    observer.attachAction(98, nullptr);
    other.trigger();
    EXPECT_EQ(observer.numbers.size(), 1);
}

TEST(Modules, action_and_observer_may_go_in_either_order) {
    QAction survivor;
    {
        Observer observer;
        auto action = std::make_unique<QAction>();
        observer.attachAction(97, action.get());
        action.reset();
        observer.setActionEnabled(97, true);
        observer.attachAction(98, &survivor);
        observer.setActionEnabled(98, true);
    }
    survivor.trigger();
}

TEST(Modules, own_actions_are_made_once_and_die_with_the_module) {
    QPointer<QAction> five;
    {
        Module module;
        EXPECT_EQ(module.getActionList().keys(), QList<int>({2, 5}));
        EXPECT_EQ(module.getActionList().value(2)->text(), "two again");
        EXPECT_EQ(module.inits, 1);
        five = module.getActionList().value(5);
        EXPECT_FALSE(five.isNull());
    }
    EXPECT_TRUE(five.isNull());
}

TEST(Modules, a_module_stays_open_only_if_saving_fails) {
    Module module;
    EXPECT_TRUE(module.SaveRequested());
    EXPECT_EQ(module.saves, 0);
    module.dirty = true;
    EXPECT_TRUE(module.SaveRequested());
    module.saveWorks = false;
    EXPECT_FALSE(module.SaveRequested());
    EXPECT_EQ(module.saves, 2);
}
