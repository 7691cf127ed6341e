#include "Dragging.h"
#include "SliderScientific.h"
#include "TFileButton.h"
#include "TInputsDialog.h"
#include "TProgressBarMgr.h"
#include "VKTreeWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

void wheelUp(QWidget* target) {
    QWheelEvent event({5, 5}, target->mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

struct Parts {
    explicit Parts(SliderScientific& whole)
        : slider(whole.findChild<QSlider*>()), box(whole.findChild<QDoubleSpinBox*>()),
          changes(&whole, &SliderScientific::valueChanged) {
        whole.show();
        whole.activateWindow();
        QCoreApplication::processEvents();
    }
    QSlider* slider;
    QDoubleSpinBox* box;
    QSignalSpy changes;
};

const double nan = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(InputsDialog, gives_the_texts_back_by_key) {
    TInputsDialog dialog("Name of the dataset", nullptr);
    dialog.addTextInput("well_name", "Dataset name:", {}, QLineEdit::Normal, "Type a name");
    dialog.addTextInput("secret", "Password:", "s", QLineEdit::Password, {});
    auto* name = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(dialog.focusWidget(), name) << "what is typed arrives";
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

TEST(SliderScale, steps_are_a_power_of_ten_no_wider_than_a_hundredth) {
    const SliderScale sensitivity(0.01, 0.8);
    EXPECT_EQ(sensitivity.decimals(), 3);
    EXPECT_EQ(sensitivity.lastPosition(), 790);
    EXPECT_EQ(sensitivity.value(490), 0.5);
    const SliderScale coelution(0.2, 2.0);
    EXPECT_EQ(coelution.decimals(), 2);
    EXPECT_EQ(coelution.position(1.25), 105);
    EXPECT_EQ(SliderScale(0, 1e6).lastPosition(), 100);
}

TEST(SliderScale, every_value_is_the_double_of_its_text) {
    for (const SliderScale& scale :
         {SliderScale(0.01, 0.8), SliderScale(0.2, 2.0), SliderScale(-3.3, 0.07)}) {
        for (int i = 0; i <= scale.lastPosition(); ++i) {
            const double value = scale.value(i);
            ASSERT_EQ(QString::number(value, 'f', scale.decimals()).toDouble(), value) << i;
            ASSERT_EQ(scale.position(value), i);
        }
    }
}

TEST(SliderScale, odd_bounds_give_a_finite_scale) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double largest = std::numeric_limits<double>::max();
    const std::pair<double, double> bounds[] = {{2, 1},           {1, 1},      {nan, 1},
                                                {0, infinity},    {0, 1e-300}, {-largest, largest},
                                                {1e15, 1e15 + 1}, {0, 1e-13}};
    for (const auto& [first, second] : bounds) {
        const SliderScale scale(first, second);
        ASSERT_LE(scale.minimum(), scale.maximum());
        EXPECT_EQ(scale.value(scale.lastPosition()), scale.maximum());
        for (const double wanted : {nan, -infinity, infinity, 0.0, first, second}) {
            const int position = scale.position(wanted);
            EXPECT_TRUE(position >= 0 && position <= scale.lastPosition()) << first << ' ' << second;
            EXPECT_TRUE(scale.value(position) >= scale.minimum() && scale.value(position) <= scale.maximum())
                << first << ' ' << second << ' ' << wanted;
        }
    }
}

TEST(SliderScientific, keeps_the_given_double_until_it_is_moved) {
    SliderScientific slider(nullptr, "Level", 0.123456789, 0.0, 1.0, "Higher is more");
    Parts parts(slider);
    EXPECT_EQ(parts.box->text(), QLocale().toString(0.12, 'f', 2));
    parts.box->setFocus();
    QTest::keyClick(parts.box, Qt::Key_Return);
    parts.slider->setFocus();
    EXPECT_EQ(parts.changes.count(), 0);
    EXPECT_EQ(slider.value(), 0.123456789);
}

TEST(SliderScientific, each_move_is_told_once_with_the_value_that_is_shown) {
    SliderScientific slider(nullptr, "Sensitivity:", 0.5, 0.01, 0.8, {});
    Parts parts(slider);
    QTest::keyClick(parts.slider, Qt::Key_Right);
    ASSERT_EQ(parts.changes.count(), 1);
    EXPECT_EQ(parts.changes.at(0).at(0).toDouble(), 0.501);
    EXPECT_EQ(parts.box->value(), 0.501);

    parts.box->selectAll();
    QTest::keyClicks(parts.box, QLocale().toString(0.3));
    EXPECT_EQ(slider.value(), 0.501) << "a number half typed must not count";
    QTest::keyClick(parts.box, Qt::Key_Return);
    ASSERT_EQ(parts.changes.count(), 2);
    EXPECT_EQ(slider.value(), 0.3);
    EXPECT_EQ(parts.slider->value(), 290);

    QTest::keyClick(parts.slider, Qt::Key_End);
    EXPECT_EQ(slider.value(), 0.8);
    QTest::keyClick(parts.slider, Qt::Key_Home);
    EXPECT_EQ(slider.value(), 0.01);
    EXPECT_EQ(parts.changes.count(), 4);
}

TEST(SliderScientific, a_value_out_of_bounds_is_brought_to_the_nearer_one) {
    EXPECT_EQ(SliderScientific(nullptr, {}, 7, 0, 5, {}).value(), 5);
    EXPECT_EQ(SliderScientific(nullptr, {}, nan, 1, 5, {}).value(), 1);
}

TEST(SliderScientific, the_wheel_moves_it_only_with_the_focus) {
    SliderScientific slider(nullptr, "Level", 2, 0, 5, {});
    Parts parts(slider);
    parts.box->setFocus();
    wheelUp(parts.slider);
    EXPECT_EQ(parts.changes.count(), 0);
    parts.slider->setFocus();
    wheelUp(parts.slider);
    EXPECT_EQ(parts.changes.count(), 1);
}

TEST(TreeWidget, dropped_files_arrive_as_local_paths_in_order) {
    VKTreeWidget tree;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/data/second run é.S00"), QUrl("https://example.org/x.S00"),
                  QUrl::fromLocalFile("/data/a#1.R00")});
    EXPECT_FALSE(deliver<QDragEnterEvent>(tree.viewport(), data)) << "nobody wants files yet";

    QSignalSpy dropped(&tree, &VKTreeWidget::dataDroppped);
    EXPECT_TRUE(deliver<QDragEnterEvent>(tree.viewport(), data));
    EXPECT_TRUE(deliver<QDragMoveEvent>(tree.viewport(), data));
    EXPECT_TRUE(deliver<QDropEvent>(tree.viewport(), data));
    ASSERT_EQ(dropped.count(), 1);
    EXPECT_EQ(dropped.at(0).at(0).toStringList(), QStringList({"/data/second run é.S00", "/data/a#1.R00"}));
}

TEST(TreeWidget, files_can_be_chosen_and_pasted_where_they_can_be_dropped) {
    VKTreeWidget tree;
    tree.resize(400, 120);
    QMimeData* const copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile("/data/a.S00"), QUrl("https://example.org/x.S00")});
    QGuiApplication::clipboard()->setMimeData(copied);
    EXPECT_EQ(tree.findChild<TFileButton*>(), nullptr) << "nobody wants files yet";

    QSignalSpy dropped(&tree, &VKTreeWidget::dataDroppped);
    QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
    auto* const button = tree.findChild<TFileButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(tree.header()->geometry().contains(button->geometry()));
    QTimer::singleShot(0, [] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>()->setText(
            QFileInfo(QCoreApplication::applicationFilePath()).filePath());
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    button->click();
    ASSERT_EQ(dropped.count(), 2);
    EXPECT_EQ(dropped.at(0).at(0).toStringList(), QStringList("/data/a.S00"));
    EXPECT_EQ(dropped.at(1).at(0).toStringList(), QStringList(QCoreApplication::applicationFilePath()));
    QGuiApplication::clipboard()->setText("/data/a.S00");
    QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dropped.count(), 2) << "a text is no file";
}

TEST(TreeWidget, keys_reach_every_cell_and_click_it) {
    VKTreeWidget tree;
    tree.setColumnCount(3);
    auto* first = new QTreeWidgetItem(&tree, {"a", "b", "c"});
    QList<int> clicked;
    QObject::connect(&tree, &QTreeWidget::itemClicked,
                     [&](QTreeWidgetItem*, int column) { clicked.append(column); });
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_TRUE(clicked.isEmpty()) << "no current item";
    tree.setCurrentItem(first, 0);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&tree, Qt::Key_Right);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(clicked, QList<int>({2}));
    EXPECT_TRUE(first->isSelected());
}
