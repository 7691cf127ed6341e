#include "AsciiImportWizardStrategyCustom.h"
#include "ImportDraft.h"
#include "ImportNotices.h"
#include "SheetBuilder.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace {

class Draft : public WizardTest {
protected:
    // What the person is told, without markup.
    static QString told(const ImportDraft& draft) {
        QStringList texts;
        for (const auto& notice : ImportNotices::of(draft)) {
            texts += QString(notice.text).remove(QRegularExpression("</?b>"));
        }
        return texts.join('\n');
    }

    ImportDraft custom(Workbook::Sheet sheet) {
        sheets.assign(1, std::move(sheet));
        return {sheets, 0, customStrategy};
    }
    ImportDraft known(Workbook::Sheet sheet) {
        sheets.assign(1, std::move(sheet));
        return {sheets, 0, someStrategy};
    }

    std::vector<Workbook::Sheet> sheets;
    AsciiImportWizardStrategyCustom customStrategy;
    SomeStrategy someStrategy;
};

const char* const group = "importWizard/";

class Memory : public WizardTest {
protected:
    Memory() : sheets{sheetOf({{"Sample", "TOC (%)", "Colour", "Name"}, {"A", 1, "red", "a"}})} {}

    QString shown() const { return contentOf(*ImportDraft(sheets, 0, strategy).table()); }

    // Colour instead of TOC, named by another column than the one proposed.
    void choose() const {
        ImportDraft draft(sheets, 0, strategy);
        draft.setTarget(1, ColumnMapping::notImported);
        draft.setTarget(2, ColumnMapping::asItIs);
        draft.setIdentifier(3);
        draft.remember();
    }

    static QString key(const QString& name) {
        const QString table = QSettings().value(group + QString("recent")).toStringList().value(0);
        return group + table + '/' + name;
    }

    std::vector<Workbook::Sheet> sheets;
    SomeStrategy strategy;
};

} // namespace

TEST_F(Draft, imports_a_custom_table_as_it_is) {
    const auto draft = custom(sheetOf({{"Depth", "Sample", "", "TOC", "", ""},
                                       {"m", "", "", "%"},
                                       {1200, "A", "", "12,5"},
                                       {},
                                       {"", " ", "", "  "},
                                       {1300, 7, "", "<1", "", "lost?"},
                                       {"", "B", "", "0,5"}}));
    EXPECT_EQ(contentOf(*draft.table()), "Sample|Depth (m)|TOC (%)|Column F\n"
                                         "A|#1200#|#12.5#|\n"
                                         "#7#|#1300#|<1|lost?\n"
                                         "B||#0.5#|");
    EXPECT_EQ(draft.table()->headerData(0, Qt::Vertical, 5), "Sample");
    EXPECT_EQ(told(draft), "");
}

TEST_F(Draft, leaves_identifiers_as_they_are_written) {
    const auto draft = custom(sheetOf({{"ID", "x"}, {"007", "007"}, {"1,5", "1,5"}, {" A ", 1}}));
    EXPECT_EQ(contentOf(*draft.table()), "ID|x\n007|007\n1,5|#1.5#\nA|#1#");
}

TEST_F(Draft, imports_known_properties_under_their_labels_and_tells_what_it_leaves_out) {
    auto draft = known(sheetOf(
        {{"Échantillon", "C.O.T. (% pds)", "Tmax (°F)", "Couleur"}, {"A", 1, 800, "gris"}, {"", 2, 3, "x"}}));
    EXPECT_EQ(contentOf(*draft.table()), "Échantillon|TOC\nA|#1#\n|#2#");
    EXPECT_EQ(told(draft), "Rows without a sample name make no sample: 3.\n"
                           "Column Tmax (°F) is not imported: its unit is not that of Tmax (°C).\n"
                           "Not imported: Couleur.");
    draft.setTarget(2, ColumnMapping::firstProperty + 1);
    draft.setTarget(3, ColumnMapping::asItIs);
    draft.setTarget(0, ColumnMapping::notImported);
    draft.setTarget(0, 1000);
    draft.setTarget(-1, 0);
    EXPECT_EQ(contentOf(*draft.table()), "Échantillon|TOC|Tmax|Couleur\nA|#1#|#800#|gris\n|#2#|#3#|x");
    EXPECT_TRUE(told(draft).contains("Column Tmax (°F) has another unit than Tmax (°C)"));
}

TEST_F(Draft, gives_each_column_a_name_of_its_own_and_says_so) {
    auto draft = known(sheetOf({{"TOC", "Sample", "COT", "TOC"}, {1, "A", 2, 3}}));
    draft.setTarget(3, ColumnMapping::asItIs);
    EXPECT_EQ(contentOf(*draft.table()), "Sample|TOC|TOC (2)|TOC (3)\nA|#1#|#2#|#3#");
    EXPECT_EQ(told(draft), "Columns A and C would both be TOC: column C is imported as TOC (2).\n"
                           "Columns A and D would both be TOC: column D is imported as TOC (3).");

    const auto equal = custom(sheetOf({{"x (2)", "x", "x", "x", "%2"}, {1, 2, 3, 4, 5}}));
    EXPECT_EQ(contentOf(*equal.table()).section('\n', 0, 0), "x (2)|x|x (3)|x (4)|%2");
}

TEST_F(Draft, warns_of_colliding_identifiers_without_markup_from_the_file) {
    const auto draft = custom(sheetOf({{"ID", "x"}, {3.2, 1}, {3.9, 2}, {"<i>%1", 3}, {"<i>%1", 4}}));
    EXPECT_EQ(told(draft), "Rows 2, 3 become one sample: 3.\nRows 4, 5 become one sample: &lt;i&gt;%1.");
    EXPECT_TRUE(draft.isComplete()) << "a warning blocks nothing";

    auto many = sheetOf({{"ID", "x"}});
    for (int row = 0; row < 1000; ++row) {
        many.rows.push_back({QString::number(row / 2), 1.0});
        many.rows.push_back({QVariant(), 1.0});
    }
    const QString text = told(custom(std::move(many)));
    EXPECT_LT(text.count('\n'), 70);
    EXPECT_TRUE(text.contains("make no sample: 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25 and 988 more"));
    EXPECT_TRUE(text.contains("more remarks of this kind"));
}

TEST_F(Draft, follows_the_rows_that_a_person_corrects) {
    auto draft = custom(sheetOf({{"a", "b"}, {"Sample", "TOC"}, {"", "%"}, {"A", "1,5"}, {"B", 2}}));
    draft.setHeaderRow(1);
    EXPECT_EQ(contentOf(*draft.table()), "Sample|TOC (%)\nA|#1.5#\nB|#2#") << "units and samples move along";
    draft.setFirstDataRow(4);
    EXPECT_EQ(contentOf(*draft.table()), "Sample|TOC (%)\nB|#2#");
    draft.setUnitsRow(-1);
    draft.setFirstDataRow(3);
    draft.setHeaderRow(0);
    draft.setHeaderRows(2);
    EXPECT_EQ(draft.header(1).text(), "b – TOC");
    draft.setDecimalComma(1, false);
    EXPECT_TRUE(contentOf(*draft.table()).contains("A|1,5"));
    draft.setHeaderRow(1000000);
    draft.setHeaderRows(-7);
    draft.setUnitsRow(99999);
    EXPECT_FALSE(draft.isComplete());
    EXPECT_TRUE(told(draft).startsWith("This sheet has no samples below its header."));
    draft.setHeaderRow(-50);
    draft.setFirstDataRow(0);
    EXPECT_EQ(contentOf(*draft.table()).section('\n', 0, 1), "Column A|Column B\na|b");
}

TEST_F(Draft, has_nothing_to_import_from_an_empty_sheet) {
    auto draft = custom(sheetOf({}));
    EXPECT_FALSE(draft.isComplete());
    EXPECT_EQ(draft.table()->columnCount(), 0);
    draft.setIdentifier(0);
    draft.setHeaderRow(3);
    EXPECT_EQ(draft.columnCount(), 0);
    EXPECT_FALSE(known(sheetOf({{"Sample", "Colour"}, {"A", "red"}})).isComplete());
}

TEST_F(Draft, handles_ten_thousand_rows_of_forty_columns_while_a_person_blinks) {
    std::vector<std::vector<QVariant>> rows(1);
    for (int column = 0; column < 40; ++column) {
        rows[0].emplace_back(QString("Column no %1").arg(column));
    }
    for (int row = 0; row < 10000; ++row) {
        rows.emplace_back();
        for (int column = 0; column < 40; ++column) {
            rows.back().emplace_back(column % 2 ? QVariant(QString("%1,5").arg(row)) : QVariant(row * 0.5));
        }
    }
    QElapsedTimer clock;
    auto sheet = sheetOf(std::move(rows));
    clock.start();
    const auto draft = custom(std::move(sheet));
    const auto table = draft.table();
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
    EXPECT_LT(clock.elapsed(), 3000) << "a tenth of it on an idle machine";
    EXPECT_EQ(table->index(9999, 39).data(), 9999.5);
}

TEST_F(Memory, proposes_what_was_chosen_for_the_same_headers) {
    EXPECT_EQ(shown(), "Sample|TOC\nA|#1#");
    choose();
    const QString chosen = "Name|Sample|Colour\na|A|red";
    EXPECT_EQ(shown(), chosen);
    sheets[0].rows[0] = {"SAMPLE", "Toc  [%]", "colour", "name"};
    sheets[0].rows.insert(sheets[0].rows.begin(), {QString("Title")});
    EXPECT_EQ(shown(), "name|SAMPLE|colour\na|A|red") << "case, blanks and place are no difference";
    EXPECT_TRUE(ImportDraft(sheets, 0, strategy).isRemembered());

    const AsciiImportWizardStrategyCustom other;
    EXPECT_FALSE(ImportDraft(sheets, 0, other).isRemembered());
    sheets[0].rows[1][2] = "Color";
    EXPECT_EQ(shown(), "SAMPLE|TOC\nA|#1#") << "other headers";
}

TEST_F(Memory, ignores_settings_that_do_not_fit) {
    choose();
    const QStringList good = QSettings().value(key("targets")).toStringList();
    ASSERT_EQ(good, QStringList({"=", "", "=", "="}));
    const QString guessed = "Sample|TOC\nA|#1#";
    const auto spoilt = [&](const QString& name, const QVariant& value) {
        const QVariant before = QSettings().value(key(name));
        QSettings().setValue(key(name), value);
        const QString result = shown();
        QSettings().setValue(key(name), before);
        return result;
    };
    EXPECT_EQ(spoilt("targets", QStringList({"=", "", "="})), guessed);
    EXPECT_EQ(spoilt("targets", QStringList({"=", "no such property", "=", "="})), guessed);
    EXPECT_EQ(spoilt("targets", QStringList({"=", "=", "=", ""})), guessed) << "samples without a name";
    EXPECT_EQ(spoilt("targets", QByteArray("\xff\x00", 2)), guessed);
    EXPECT_EQ(spoilt("targets", QStringList()), guessed);
    EXPECT_EQ(spoilt("identifier", 4), guessed);
    EXPECT_EQ(spoilt("identifier", -1), guessed);
    EXPECT_EQ(spoilt("identifier", "first"), guessed);
    EXPECT_NE(shown(), guessed);
}

TEST_F(Memory, forgets_the_oldest_tables_and_nothing_else) {
    const QString oldest(40, 'b');
    QStringList recent;
    for (int i = 0; i < 199; ++i) {
        recent += QString(40, 'a');
    }
    recent += {oldest, "", "mine", "../mine"};
    QSettings().setValue("importWizard/recent", recent);
    QSettings().setValue("importWizard/mine", 1);
    QSettings().setValue(group + oldest + "/targets", "=");
    choose();
    EXPECT_FALSE(QSettings().contains(group + oldest + "/targets"));
    EXPECT_TRUE(QSettings().contains(key("targets")));
    EXPECT_EQ(QSettings().value("importWizard/mine"), 1) << "what is no fingerprint is never removed";
    EXPECT_EQ(QSettings().value("importWizard/recent").toStringList().size(), 200);
}
