#include "HelpInterface.h"
#include "ModuleEditorAbstract.h"
#include "ModuleObserver.h"
#include "VKError.h"
#include "VKRibbonGroup.h"
#include "VKRibbonGroupExpandable.h"
#include "VKRibbonModuleBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

class Observer : public ModuleObserver {
public:
    void actionTriggered(int number) override {
        triggered.append(number);
        ModuleObserver::actionTriggered(number);
    }
    void showDataEditor() override { ++tables; }
    void help() override { page = attachedHelp() ? attachedHelp()->getIdForHelp() : 0; }

    QList<int> triggered;
    int tables = 0;
    int page = -1;
};

class Editor : public VKRibbonModuleBar, public HelpInterface, public ModuleEditorAbstract {
public:
    Editor() : VKRibbonModuleBar("Module") {}
    int getIdForHelp() const override { return 124; }
    using VKRibbonModuleBar::addGenericActions;
    using VKRibbonModuleBar::createDescriptionGroup;

    QToolButton* button(const QString& text) const {
        for (auto* button : actionGroup()->findChildren<QToolButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
};

} // namespace

TEST(ModuleBar, set_up_as_a_module_does_it_stands_in_order) {
    Observer observer;
    Editor bar;
    bar.createDescriptionGroup(-9999, true);
    bar.createActionGroup({});
    bar.registerObserver(&observer);
    auto* group = new VKRibbonGroupExpandable(bar.title(), &bar);
    bar.mainLayout()->addWidget(group);
    bar.mainLayout()->insertWidget(1, group, 0, {});
    bar.setModuleDescription(QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_SourceRock_QAQC.png"), "Check");
    bar.addGenericActions(false, false);
    ASSERT_EQ(bar.mainLayout()->count(), 3);
    EXPECT_EQ(bar.mainLayout()->itemAt(1)->widget(), group);
    EXPECT_EQ(bar.mainLayout()->itemAt(2)->widget(), bar.actionGroup());
    EXPECT_FALSE(bar.pixmap().isNull());
    EXPECT_EQ(bar.actionGroup()->findChildren<QToolButton*>().count(), 1) << "help alone";
    bar.resize(bar.sizeHint());
    EXPECT_GE(bar.height(), 64) << "room for the picture";
}

TEST(ModuleBar, a_modules_own_actions_reach_the_observer_by_number) {
    Observer observer;
    QAction late("Late");
    Editor bar;
    QAction first("First");
    QAction second("Second");
    bar.createActionGroup({{7, &second}, {3, &first}, {5, nullptr}});
    bar.registerObserver(&observer);
    bar.button("Second")->click();
    bar.button("First")->click();
    EXPECT_EQ(observer.triggered, QList<int>({7, 3}));

    bar.createActionGroup({{9, &late}});
    EXPECT_EQ(bar.button("First"), nullptr);
    first.trigger();
    late.trigger();
    EXPECT_EQ(observer.triggered, QList<int>({7, 3, 9}));
    bar.unregisterObserver();
    late.trigger();
    EXPECT_EQ(observer.triggered.count(), 3);
}

TEST(ModuleBar, generic_actions_open_when_the_module_says_so) {
    Observer observer;
    Editor bar;
    bar.addGenericActions(true, true);
    for (const char* text : {"Results", "Save", "Help"})
        EXPECT_FALSE(bar.button(text)->isEnabled()) << text << " without an observer";
    bar.registerObserver(&observer);
    EXPECT_FALSE(bar.button("Results")->isEnabled());
    EXPECT_TRUE(bar.button("Help")->isEnabled());
    observer.setActionEnabled(ModuleObserver::dataEditorAction, true);
    bar.button("Results")->click();
    bar.button("Help")->click();
    EXPECT_EQ(observer.tables, 1);
    EXPECT_EQ(observer.page, 124);
    bar.unregisterObserver();
    EXPECT_FALSE(bar.button("Results")->isEnabled());
    bar.button("Results")->click();
    EXPECT_EQ(observer.tables, 1);
    observer.help();
    EXPECT_EQ(observer.page, 0) << "the page went with the bar";
}

TEST(ModuleEditorAbstract, without_a_bar_it_says_so) {
    ModuleEditorAbstract editor;
    EXPECT_THROW(editor.createActionGroup({}), VKError);
    EXPECT_THROW(editor.unregisterObserver(), VKError);
}
