#include "NameText.h"
#include "NaturalOrder.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

QByteArray key(const QString& name) {
    return NaturalOrder::key(name).toUtf8();
}

} // namespace

TEST(NaturalOrder, keys_compare_byte_by_byte_as_the_names_are_sorted_by_people) {
    // Each list as the rules of English sort it.
    for (const char* const list :
         {"|_|-|(|#|+|0|1|9|10|99|100|a|B|z", "R 2|S 1|s 9|S 10|S 100|S10",
          "a|a 1|a-1|a.1|a1|a1.5|a1b|a2|a10|ab",
          "well 1-2|well 1-10|well 2-1|well 12|well 12 (2)|well 12 (10)|well12", "e|é|ea|éa|eb|f",
          "1.2.S00|1.10.S00|1.10.S01", "good-clean-01.R00|good-clean-1.S00|good-clean-02.S00", "A|Ä|Äa|B|Z",
          "8888888888888888888888889|88888888888888888888888890|a", "Zoë|Я 2|Я 10|я 11|層 1"}) {
        const QStringList names = QString::fromUtf8(list).split('|');
        for (int i = 1; i < names.size(); ++i) {
            EXPECT_LT(key(names.at(i - 1)), key(names.at(i)))
                << qPrintable(names.at(i - 1) + " | " + names.at(i));
            EXPECT_LE(NaturalOrder::collator().compare(names.at(i - 1), names.at(i)), 0)
                << qPrintable(names.at(i - 1) + " | " + names.at(i));
        }
    }
}

TEST(NaturalOrder, keys_of_any_text_are_short_and_whole) {
    EXPECT_EQ(key("Sample 007"), key("SAMPLE 7"));
    EXPECT_EQ(key(QString::fromUtf8("Zo\u00eb")), key(QString::fromUtf8("Zoe\u0308")))
        << "two ways of writing it";
    EXPECT_LT(key(QString(2000, '9')), key(QString(2000, 'a')));
    EXPECT_LT(key(QString("a\nb")), key("a1"));
    EXPECT_EQ(key({}), "");
    const QString faces = QString::fromUtf8("x") + QString::fromUtf8("\U0001F600").repeated(200);
    EXPECT_LE(NaturalOrder::key(faces).size(), NaturalOrder::maximumKeyLength);
    EXPECT_EQ(QString::fromUtf8(key(faces)), NaturalOrder::key(faces)) << "no half of a letter";
}

TEST(NameText, folding_makes_names_that_differ_in_case_or_line_breaks_the_same) {
    EXPECT_EQ(NameText::folded(QString::fromUtf8("ÉCOLE\tROUTE")),
              NameText::folded(QString::fromUtf8("école route")));
    EXPECT_EQ(NameText::folded(QString::fromUtf8("e\u0301")), QString::fromUtf8("é"));
    EXPECT_NE(NameText::folded("a1"), NameText::folded("a01"));
}
