#include "TPlainTip.h"
#include "TToolButton.h"

#include <QPointer>
#include <QTest>
#include <QTextDocument>

#include <gtest/gtest.h>

// The toolkit isn't instrumented by the sanitizers: what a button writes after its end, valgrind tells.
TEST(ToolButton, may_go_while_its_click_is_dealt_with) {
    const QPointer<TToolButton> button(new TToolButton);
    QObject::connect(button.data(), &QToolButton::clicked, [&button] { delete button; });
    button->show();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(button.isNull());
}

TEST(PlainTip, shows_what_looks_like_markup_letter_by_letter) {
    EXPECT_EQ(TPlainTip::of({}), QString());
    for (const QString text : {"<b>fine</b> <img src='x'>", "R&D", "a &amp; b", "two\nlines"}) {
        ASSERT_TRUE(Qt::mightBeRichText(TPlainTip::of(text))) << text.toStdString();
        QTextDocument tip;
        tip.setHtml(TPlainTip::of(text));
        EXPECT_EQ(tip.toPlainText(), text);
    }
}
