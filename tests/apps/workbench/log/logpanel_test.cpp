#include "LogPanel.h"
#include "LogText.h"
#include "MessageLogModel.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int mostMilliseconds = 5000;
#else
constexpr int mostMilliseconds = 1000;
#endif

class LogPanelTest : public testing::Test {
protected:
    LogPanelTest() {
        panel.resize(600, 200);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
        list->setFocus();
    }

    void log(int count) {
        for (int i = 0; i < count; ++i) {
            model.log(MessageLevel::Information, QString("message %1").arg(i));
        }
        settle();
    }
    static void settle() { QTest::qWait(20); }
    int shown() const { return list->model()->rowCount(); }
    int heightOf(int row) const { return list->visualRect(list->model()->index(row, 2)).height(); }
    bool atEnd() const {
        const QScrollBar& bar = *list->verticalScrollBar();
        return bar.value() == bar.maximum();
    }
    QToolButton* button(const QString& beginning) const {
        const QList<QToolButton*> all = panel.findChildren<QToolButton*>();
        return *std::find_if(all.begin(), all.end(),
                             [&](QToolButton* found) { return found->text().startsWith(beginning); });
    }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    MessageLogModel model;
    LogPanel panel{model};
    QTreeView* list = panel.findChild<QTreeView*>();
};

} // namespace

TEST(LogText, markup_it_does_not_know_is_text) {
    const LogText text("a <b>bold <i>both</i></b><br>&lt;img src=&quot;http://x/y&quot;&gt; &amp;lt; "
                       "<a href=\"http://x\">link</a>");
    EXPECT_EQ(text.text(), QString("a bold both") + QChar(QChar::LineSeparator) +
                               "<img src=\"http://x/y\"> &lt; <a href=\"http://x\">link</a>");
    ASSERT_EQ(text.formats().size(), 2);
    const auto& bold = text.formats()[0];
    const auto& both = text.formats()[1];
    EXPECT_TRUE(bold.start == 2 && bold.length == 5 && !bold.format.fontItalic());
    EXPECT_TRUE(both.length == 4 && both.format.fontItalic());
}

TEST_F(LogPanelTest, a_window_that_opens_over_the_mouse_may_come_before_new_messages_are_laid_out) {
    list->viewport()->setAttribute(Qt::WA_Hover); // as the style of the window does
    log(100);
    const QPoint inside = list->viewport()->rect().center();
    for (int i = 0; i < 20; ++i) {
        QTest::mouseMove(list->viewport(), inside + QPoint(i, 0));
        settle();
        model.log(MessageLevel::Warning, "one\nmore");
        QEvent left(QEvent::Leave);
        QCoreApplication::sendEvent(list->viewport(), &left);
        EXPECT_TRUE(atEnd());
    }
}

TEST_F(LogPanelTest, hostile_markup_is_shown_as_it_stands) {
    model.log(MessageLevel::Error, "<img src='file:///etc/passwd'><a href='http://x'>go</a>");
    settle();
    list->grab(); // a fetch that fails would warn
    list->selectAll();
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(clipboard().endsWith("\tError\t<img src='file:///etc/passwd'><a href='http://x'>go</a>\n"))
        << qPrintable(clipboard());
}

TEST_F(LogPanelTest, levels_and_a_text_choose_what_is_shown_and_copied) {
    model.log(MessageLevel::Debug, "detail");
    model.log(MessageLevel::Warning, "the <b>First</b><br>curve");
    model.log(MessageLevel::Error, "second curve");
    settle();
    EXPECT_EQ(shown(), 2);
    EXPECT_EQ(button("Warning")->text(), "Warning  1");
    button("Detail")->click();
    EXPECT_EQ(shown(), 3);
    button("Error")->click();
    EXPECT_EQ(shown(), 2);
    auto* const search = panel.findChild<QLineEdit*>();
    QTest::keyClick(list, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(search, "first");
    EXPECT_EQ(shown(), 1);
    button("Copy all")->click();
    EXPECT_EQ(clipboard().count('\t'), 2);
    EXPECT_TRUE(clipboard().endsWith("\tthe First curve\n"));
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(shown(), 2);
    EXPECT_TRUE(list->hasFocus());
    button("Clear")->click();
    settle();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(button("Warning")->text(), "Warning  0");
}

TEST_F(LogPanelTest, rows_are_as_high_as_their_wrapped_texts) {
    model.log(MessageLevel::Information, "short");
    model.log(MessageLevel::Information, QString("many words ").repeated(30));
    model.log(MessageLevel::Information, QString(400, 'x'));
    settle();
    EXPECT_GT(heightOf(1), 2 * heightOf(0));
    EXPECT_GT(heightOf(2), 2 * heightOf(0));
    const int before = heightOf(1);
    panel.resize(1200, 200);
    settle();
    EXPECT_LT(heightOf(1), before);
}

TEST_F(LogPanelTest, follows_the_newest_until_the_user_scrolls_away_and_again_at_the_end) {
    log(100);
    QScrollBar& bar = *list->verticalScrollBar();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_TRUE(atEnd());
    QTest::keyClick(list, Qt::Key_Home, Qt::ControlModifier);
    bar.setValue(50);
    log(10);
    EXPECT_EQ(bar.value(), 50);
    bar.setValue(bar.maximum());
    log(10);
    EXPECT_TRUE(atEnd());
    panel.resize(600, 120);
    settle();
    EXPECT_TRUE(atEnd());
}

TEST_F(LogPanelTest, a_burst_of_messages_does_not_freeze) {
    const QString text = QString("a sentence that is <b>long</b> enough to be wrapped %1 ").repeated(4);
    const std::clock_t start = std::clock(); // of this process: the machine may be busy otherwise
    for (int i = 0; i < 5000; ++i) {
        model.log(MessageLevel::Warning, text.arg(i));
    }
    list->grab();
    settle();
    EXPECT_LT(1000 * (std::clock() - start) / CLOCKS_PER_SEC, mostMilliseconds);
    EXPECT_TRUE(atEnd());
    EXPECT_EQ(button("Warning")->text(), "Warning  " + QLocale().toString(5000));
}
