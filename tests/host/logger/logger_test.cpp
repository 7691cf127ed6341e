#include "ExpectedWarning.h"
#include "MessageCollector.h"
#include "MessageLogModel.h"
#include "MessageText.h"
#include "VKError.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTextDocument>

#include <random>
#include <sstream>

namespace {

std::string rich(const QString& message) {
    return MessageText(message).rich().toStdString();
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
        VKError::dispatchError(VKError("It <b>broke</b>.", {}, "Repair it."));
        EXPECT_EQ(standard.messages(MessageLevel::Information), QStringList("one"));
        EXPECT_EQ(standard.messages(MessageLevel::Debug), QStringList("three"));
        EXPECT_EQ(standard.messages(MessageLevel::Error), QStringList("It <b>broke</b>. Repair it."));
        EXPECT_EQ(own.messages(MessageLevel::Error), QStringList("two"));
    }
    EXPECT_EQ(MessageLoggerInterface::defaultLogger(), nullptr) << "a destroyed logger takes itself out";
    const ExpectedWarning told("disk x full");
    MessageLoggerInterface::Warning("disk <b>x</b> full");
    const ExpectedWarning failed("later");
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
    EXPECT_EQ(model.index(0, MessageLogModel::TextColumn).data(), "47");
    EXPECT_EQ(model.index(2, MessageLogModel::TextColumn).data(), "49");
    ASSERT_EQ(errors.rowCount(), 1);
    EXPECT_EQ(errors.index(0, MessageLogModel::TextColumn).data(), "48");
    model.clear();
    EXPECT_EQ(model.rowCount() + errors.rowCount(), 0);
    model.log(MessageLevel::Warning, "<b>x</b> <img src=y>");
    EXPECT_EQ(model.index(0, MessageLogModel::LevelColumn).data(), "Warning");
    EXPECT_EQ(model.index(0, 0).data(MessageLogModel::RichTextRole), "<b>x</b> &lt;img src=y&gt;");
    EXPECT_EQ(model.index(0, MessageLogModel::TextColumn).data(), "x <img src=y>");
    EXPECT_EQ(MessageLogModel(-5).rowCount(), 0);
}

TEST(MessageText, bold_italic_and_line_breaks_survive) {
    EXPECT_EQ(rich("File <b>a.S00</b> <i>done</i><br>next<BR/>last<br />"),
              "File <b>a.S00</b> <i>done</i><br>next<br>last<br>");
    EXPECT_EQ(rich("<B>x</B>"), "<b>x</b>");
    EXPECT_EQ(rich("one\r\ntwo\tthree"), "one<br>two\tthree");
    EXPECT_EQ(MessageText("a <b>&amp;</b><br>b").plain(), "a &\nb");
}

TEST(MessageText, everything_else_is_shown_as_text) {
    EXPECT_EQ(rich("<a href=\"http://x\">y</a>"), "&lt;a href=&quot;http://x&quot;&gt;y&lt;/a&gt;");
    EXPECT_EQ(rich("<img src=x>"), "&lt;img src=x&gt;");
    EXPECT_EQ(rich("<b style='x'>y"), "&lt;b style='x'&gt;y");
    EXPECT_EQ(rich("<<b>b>"), "&lt;<b>b&gt;</b>");
    EXPECT_EQ(rich("&#60;img&#62; &lt;img&gt; &amp;lt;"), "&amp;#60;img&amp;#62; &lt;img&gt; &amp;lt;");
    EXPECT_EQ(rich(QString("nul") + QChar(0) + QChar(27)), "nul\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(MessageText, elements_are_balanced_whatever_comes_in) {
    EXPECT_EQ(rich("<b>open"), "<b>open</b>");
    EXPECT_EQ(rich("</b>stray"), "&lt;/b&gt;stray");
    EXPECT_EQ(rich("<b><i>x</b>y</i>"), "<b><i>x&lt;/b&gt;y</i></b>");
    EXPECT_EQ(rich("<b><b>one</b>, <b>two</b></b>"), "<b><b>one</b>, <b>two</b></b>");
    EXPECT_EQ(rich(QString("<i>").repeated(9)).rfind("&lt;i&gt;"), 8 * 3U) << "eight are enough";
}

TEST(MessageText, a_long_message_ends_in_an_ellipsis_and_no_half_character) {
    const QString pair = QString::fromUtf8("\xF0\x9F\x98\x80");
    const QString plain = MessageText(QString(MessageText::maxLength - 1, 'x') + pair.repeated(500)).plain();
    EXPECT_EQ(plain, QString(MessageText::maxLength - 1, 'x') + QChar(0x2026));
    EXPECT_EQ(MessageText(QString(MessageText::maxLength, 'x')).plain().size(), MessageText::maxLength);
    EXPECT_LT(MessageText(QString("<b>").repeated(10'000'000)).rich().size(), 8 * MessageText::maxLength);
}

TEST(MessageText, no_mixture_of_pieces_gets_another_element_through) {
    const QStringList pieces =
        QString("<|>|</|b|i|br|b>|<b>|</b>|<i>|</i>|<br>|&|&lt;|&amp;|a href='http://x/y'|"
                "img src='file:///etc/passwd'|script|\n| ")
            .split('|');
    std::mt19937 random(7);
    const QRegularExpression allowed("</?[bi]>|<br>");
    for (int round = 0; round < 5000; ++round) {
        QString message;
        for (int piece = 0; piece < 12; ++piece) {
            message += pieces.at(static_cast<int>(random() % static_cast<unsigned>(pieces.size())));
        }
        const MessageText text(message);
        QString rest = text.rich();
        rest.remove(allowed);
        ASSERT_FALSE(rest.contains('<') || rest.contains('>')) << message.toStdString();
        QTextDocument shown; // what Qt makes of it is what the plain text says, but for blanks
        shown.setHtml(text.rich());
        ASSERT_EQ(shown.toPlainText().simplified(), text.plain().simplified()) << message.toStdString();
    }
}
