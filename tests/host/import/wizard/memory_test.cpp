#include "SheetBuilder.h"

#include "AsciiImportWizardStrategyCustom.h"
#include "ImportDraft.h"

namespace {

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
