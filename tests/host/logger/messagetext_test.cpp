#include "MessageText.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTextDocument>

#include <random>

namespace {

std::string rich(const QString& message) {
    return MessageText(message).rich().toStdString();
}

} // namespace

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
    const QStringList pieces{"<",
                             ">",
                             "</",
                             "b",
                             "i",
                             "br",
                             "b>",
                             "<b>",
                             "</b>",
                             "<i>",
                             "</i>",
                             "<br>",
                             "&",
                             "&lt;",
                             "&amp;",
                             "a href='http://x/y'",
                             "img src='file:///etc/passwd'",
                             "script",
                             "\n",
                             " "};
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
