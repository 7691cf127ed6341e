#include "ProjectFixture.h"

#include <random>

using TechDB::ListedNames;
using TechDB::NameRange;

namespace {

class Names : public ProjectTest {
protected:
    Names() {
        for (const char* const name :
             {"S 10", "s 9", "100%", "under_score", "a!b", "\u00c9cole 2", "S 100"}) {
            database->addAnalysis(QString::fromUtf8(name), {}, ramp());
        }
    }
    QString holding(const QString& part) const {
        NameRange range;
        range.part = part;
        return joined(database->analysisNames(range));
    }
};

} // namespace

TEST_F(Names, come_page_by_page_in_natural_order_without_gap_or_repetition) {
    const ListedNames all = database->analysisNames({});
    EXPECT_EQ(joined(all).toStdString(), "100% a!b \u00c9cole 2 s 9 S 10 S 100 under_score");
    NameRange page;
    page.limit = 3;
    QStringList pages;
    for (ListedNames names = database->analysisNames(page); !names.isEmpty();
         names = database->analysisNames(page)) {
        pages.append(joined(names));
        page.after = names.last().place;
    }
    EXPECT_EQ(pages, QStringList({"100% a!b \u00c9cole 2", "s 9 S 10 S 100", "under_score"}));
    NameRange upTo;
    upTo.after = all.at(1).place;
    upTo.upTo = all.at(3).place;
    EXPECT_EQ(joined(database->analysisNames(upTo)), "\u00c9cole 2 s 9");
    upTo.only = all.at(4).place.key;
    EXPECT_EQ(joined(database->analysisNames(upTo)), "");
}

TEST_F(Names, are_found_by_any_part_letter_by_letter) {
    for (const QString pair : {"s 1=S 10 S 100", "%=100%", "r_s=under_score", "_=under_score", "A!B=a!b",
                               "!=a!b", "e\u0301COLE=\u00c9cole 2"}) {
        EXPECT_EQ(holding(pair.section('=', 0, 0)), pair.section('=', 1));
    }
    EXPECT_EQ(holding("' OR 1=1 --"), "");
    EXPECT_EQ(holding(QString(100'000, 'x')), "") << "longer than engines take";
}

TEST_F(Names, of_a_dataset_are_found_by_those_of_its_samples) {
    for (const QString name : {"Basin", "Ridge", "Empty"}) {
        database->addWell(name);
    }
    const qint64 ridge = database->getWell("Ridge")->key();
    for (const QString name : {"11", "2", "basin 3"}) {
        database->addSample(ridge, name, {{"r"}, {"c"}, {1.0}, {}});
    }
    NameRange basin;
    basin.part = "BASIN";
    EXPECT_EQ(joined(database->datasetNames(basin)), "Basin Ridge");
    EXPECT_EQ(joined(database->sampleNames(ridge, {})), "2 11 basin 3");
    EXPECT_EQ(joined(database->sampleNames(ridge, basin)), "basin 3");
    EXPECT_EQ(joined(database->sampleNames(ridge + 1, {})), "");
    const ListedNames all = database->datasetNames({});
    EXPECT_EQ(all.at(0).count, 0);
    EXPECT_EQ(all.at(2).count, 1);
}

TEST_F(Names, of_the_greatest_length_find_room_in_the_index) {
    // Letters that become two of three bytes each when they are folded, in no order that could be packed.
    std::mt19937 random(1);
    std::uniform_int_distribution<int> letter(0x0958, 0x095f);
    QString name;
    for (int i = 0; i < 255; ++i) {
        name += QChar(letter(random));
    }
    const qint64 dataset = database->addWell(name)->key();
    database->addSample(dataset, name, {{"r"}, {"c"}, {1.0}, {}});
    database->addAnalysis(name, {}, ramp());
    EXPECT_EQ(holding(name), name);
    EXPECT_EQ(joined(database->sampleNames(dataset, {})), name);
}

TEST_F(Names, follow_a_renaming_and_are_listed_though_not_in_order_when_another_program_wrote_them) {
    database->renameAnalysis(database->getAnalysis("S 10")->key(), "A 1");
    EXPECT_EQ(holding("s 10"), "S 100");
    EXPECT_EQ(joined(database->analysisNames({})), "100% A 1 a!b \u00c9cole 2 s 9 S 100 under_score");
    sql({"INSERT INTO datasets (name, created) VALUES ('theirs', 'never')"});
    EXPECT_EQ(joined(database->datasetNames({})), "theirs");
}
