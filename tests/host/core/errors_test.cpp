#include "ExpectedWarning.h"
#include "VKError.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <stdexcept>

TEST(Errors, what_is_the_first_filled_text_in_utf8) {
    const QString accented = QStringLiteral("Données absentes");
    EXPECT_EQ(QString::fromUtf8(VKError(accented, "place", "advice").what()), accented);
    EXPECT_STREQ(VKError({}, {}, "advice").what(), "advice");
    EXPECT_STREQ(VKError(QString()).what(), "");
    EXPECT_EQ(VKError("It broke.", {}, "Repair it.").text(), "It broke. Repair it.");
}

TEST(Errors, dispatch_reaches_the_handler_with_every_kind_of_exception) {
    QStringList told;
    const VKError::Handler before = VKError::setHandler([&](const QString& text) { told += text; });
    const VKError sliced("a", "b", "c");
    const std::exception& seenAsBase = sliced;
    VKError::dispatchError(seenAsBase);
    VKError::dispatchError(std::runtime_error("plain"));
    VKError::dispatchError(VKError(QString()));
    VKError::setHandler(before);
    ASSERT_EQ(told.size(), 3);
    EXPECT_EQ(told.at(0), "a b c");
    EXPECT_EQ(told.at(1), "plain");
    EXPECT_FALSE(told.at(2).isEmpty()) << "a failure without a text is told all the same";
}

TEST(Errors, without_a_handler_failures_go_to_the_qt_log) {
    const ExpectedWarning told("no disk space");
    VKError::dispatchError(VKError("no disk space"));
}
