#include "ExpectedWarning.h"
#include "MessageCollector.h"
#include "MessageLogModel.h"
#include "VKError.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>

#include <sstream>

namespace {

QString textAt(const QAbstractItemModel& model, int row) {
    return model.index(row, MessageLogModel::TextColumn).data().toString();
}

} // namespace

TEST(Logger, messages_go_to_the_logger_given_else_to_the_default_else_to_qts_log) {
    MessageCollector own;
    {
        MessageCollector standard;
        MessageLoggerInterface::setDefaultLogger(&standard);
        MessageLoggerInterface::Information("one");
        MessageLoggerInterface::Error("two", &own);
        MessageLoggerInterface::Debug("three", nullptr);
        EXPECT_EQ(standard.messages(MessageLevel::Information), QStringList("one"));
        EXPECT_EQ(standard.messages(MessageLevel::Debug), QStringList("three"));
        EXPECT_TRUE(standard.messages(MessageLevel::Error).isEmpty());
        EXPECT_EQ(own.messages(MessageLevel::Error), QStringList("two"));
    }
    EXPECT_EQ(MessageLoggerInterface::defaultLogger(), nullptr) << "a destroyed logger takes itself out";
    const ExpectedWarning told("disk x full");
    MessageLoggerInterface::Warning("disk <b>x</b> full");
}

TEST(Logger, reported_failures_come_as_errors_of_the_default_logger) {
    {
        MessageCollector standard;
        MessageLoggerInterface::setDefaultLogger(&standard);
        VKError::dispatchError(VKError("It <b>broke</b>.", {}, "Repair it."));
        EXPECT_EQ(standard.messages(MessageLevel::Error), QStringList("It <b>broke</b>. Repair it."));
    }
    const ExpectedWarning told("later");
    VKError::dispatchError(VKError("later"));
}

TEST(Logger, the_collector_echoes_plain_lines) {
    std::ostringstream out;
    MessageCollector collector(&out);
    MessageLoggerInterface::Error(QStringLiteral("é <b>x</b> <a>"), &collector);
    MessageLoggerInterface::Information("y", &collector);
    EXPECT_EQ(out.str(), "error: \xC3\xA9 x <a>\ninformation: y\n");
}

TEST(LogModel, keeps_the_latest_messages_and_tells_its_views) {
    MessageLogModel model(3);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Warning);
    QSortFilterProxyModel errors;
    errors.setSourceModel(&model);
    errors.setFilterRole(MessageLogModel::LevelRole);
    errors.setFilterFixedString(QString::number(static_cast<int>(MessageLevel::Error)));
    for (int number = 0; number < 50; ++number) {
        model.log(number % 2 == 0 ? MessageLevel::Error : MessageLevel::Debug, QString::number(number));
    }
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(textAt(model, 0), "47");
    EXPECT_EQ(textAt(model, 2), "49");
    ASSERT_EQ(errors.rowCount(), 1);
    EXPECT_EQ(textAt(errors, 0), "48");
    model.clear();
    EXPECT_EQ(model.rowCount() + errors.rowCount(), 0);
    EXPECT_EQ(MessageLogModel(-5).rowCount(), 0);
}

TEST(LogModel, answers_each_role_in_every_column_and_nothing_outside) {
    MessageLogModel model;
    const QDateTime before = QDateTime::currentDateTime();
    model.log(MessageLevel::Warning, "<b>x</b> <img src=y>");
    const QModelIndex level = model.index(0, MessageLogModel::LevelColumn);
    EXPECT_EQ(level.data().toString(), "Warning");
    EXPECT_EQ(level.data(MessageLogModel::RichTextRole), "<b>x</b> &lt;img src=y&gt;");
    EXPECT_EQ(textAt(model, 0), "x <img src=y>");
    const QDateTime time = level.data(MessageLogModel::TimeRole).toDateTime();
    EXPECT_TRUE(time >= before && time <= QDateTime::currentDateTime());
    EXPECT_FALSE(level.data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data({}).isValid());
    EXPECT_EQ(model.headerData(MessageLogModel::TextColumn, Qt::Horizontal), "Message");
    EXPECT_FALSE(model.headerData(7, Qt::Horizontal).isValid());
}
