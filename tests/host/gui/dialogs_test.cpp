#include "TInputsDialog.h"
#include "TProgressBarMgr.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

TEST(InputsDialog, gives_the_texts_back_by_key) {
    TInputsDialog dialog("Name of the dataset", nullptr);
    dialog.addTextInput("well_name", "Dataset name:", "old", QLineEdit::Normal, "Type a name");
    dialog.addTextInput("secret", "Password:", "s", QLineEdit::Password, {});
    auto* name = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(name->toolTip(), "Type a name");
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    name->setText("  ");
    EXPECT_FALSE(ok->isEnabled()) << "blanks are no text";
    name->setText(" new name ");
    QTimer::singleShot(0, ok, &QPushButton::click);
    EXPECT_EQ(dialog.exec(), 1);
    EXPECT_EQ(dialog.getTextIntput("well_name"), "new name");
    EXPECT_EQ(dialog.getTextIntput("secret"), "s");
    EXPECT_TRUE(dialog.getTextIntput("unknown").isNull());

    QTimer::singleShot(0, &dialog, &QDialog::reject);
    EXPECT_EQ(dialog.exec(), 0);

    TInputsDialog empty("Address", nullptr);
    empty.addTextInput("address", "Address", {}, QLineEdit::Normal, "host");
    EXPECT_EQ(empty.focusWidget(), empty.findChild<QLineEdit*>()) << "what is typed arrives";
}

TEST(ProgressBar, shows_steps_without_running_the_event_loop) {
    QMainWindow window;
    window.resize(640, 480);
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    bool ran = false;
    QTimer::singleShot(0, &window, [&ran] { ran = true; });
    {
        TProgressBarMgr progress(5, "Creating datasets", true);
        const auto* bar = window.findChild<QProgressBar*>();
        ASSERT_NE(bar, nullptr);
        EXPECT_TRUE(bar->isVisible());
        EXPECT_TRUE(window.statusBar()->isAncestorOf(bar));
        EXPECT_GT(bar->width(), 100) << "laid out before any event is processed";
        for (int i = 0; i <= 5; ++i)
            progress.setProgress(i, true);
        EXPECT_EQ(bar->value(), 5);
        progress.setProgress(-3, true);
        EXPECT_EQ(progress.progress(), 0);
        progress.setProgress(99, false);
        EXPECT_EQ(bar->value(), 5);
    }
    EXPECT_FALSE(ran);
    EXPECT_EQ(window.findChild<QProgressBar*>(), nullptr);
}

TEST(ProgressBar, outlives_its_window_and_does_without_one) {
    auto window = std::make_unique<QMainWindow>();
    window->show();
    TProgressBarMgr progress(0, "Text", true);
    window.reset();
    progress.setProgress(1, true);
    EXPECT_EQ(progress.progress(), 1);
    TProgressBarMgr unseen(3, "Text", false);
    unseen.setProgress(2, true);
    EXPECT_EQ(unseen.progress(), 2);
}
