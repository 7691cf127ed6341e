#include "SliderScientific.h"

#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <limits>

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

} // namespace

TEST(SliderScale, steps_are_a_power_of_ten_no_wider_than_a_hundredth) {
    const SliderScale sensitivity(0.01, 0.8);
    EXPECT_EQ(sensitivity.decimals(), 3);
    EXPECT_EQ(sensitivity.lastPosition(), 790);
    EXPECT_EQ(sensitivity.value(490), 0.5);
    const SliderScale coelution(0.2, 2.0);
    EXPECT_EQ(coelution.decimals(), 2);
    EXPECT_EQ(coelution.lastPosition(), 180);
    EXPECT_EQ(coelution.position(1.25), 105);
    const SliderScale wide(0, 1e6);
    EXPECT_EQ(wide.step(), 1e4);
    EXPECT_EQ(wide.lastPosition(), 100);
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
    const double nan = std::numeric_limits<double>::quiet_NaN();
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
    EXPECT_EQ(slider.toolTip(), "Higher is more");
    EXPECT_EQ(slider.whatsThis(), "Higher is more");
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
    EXPECT_EQ(SliderScientific(nullptr, {}, std::numeric_limits<double>::quiet_NaN(), 1, 5, {}).value(), 1);
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
