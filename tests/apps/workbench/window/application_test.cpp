#include "Application.h"
#include "MessageCollector.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include <stdexcept>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

TEST(LastNet, what_leaves_a_slot_is_logged_and_the_window_lives_on) {
    MessageCollector log;
    MessageLoggerInterface::setDefaultLogger(&log);
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler guardsOfQt; // which an exception does not unwind: a few bytes each
#endif
    QPushButton button;
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&clicks] {
        if (++clicks == 1) {
            throw std::runtime_error("the <b>curve</b> has no end");
        }
        if (clicks == 2) {
            throw 3;
        }
    });
    button.show();
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    EXPECT_EQ(clicks, 3);
    const QStringList errors = log.messages(MessageLevel::Error);
    ASSERT_EQ(errors.size(), 2);
    EXPECT_TRUE(errors[0].contains("the &lt;b&gt;curve&lt;/b&gt; has no end")) << errors[0].toStdString();
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const Application application(argc, argv);
    const int result = RUN_ALL_TESTS();
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check(); // before Qt leaves its own things behind
#endif
    return result;
}
