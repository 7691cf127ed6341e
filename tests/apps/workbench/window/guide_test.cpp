#include "Guide.h"
#include "HelpId.h"
#include "HelpPage.h"
#include "WorkbenchFixture.h"
#include "Workspace.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextBlock>

namespace {

/// What a guide is built of, whatever its language.
struct Shape {
    QStringList anchors;    // of the headings
    QVector<int> levels;    // of the headings
    QStringList references; // to headings
    QStringList pictures;
    QStringList others; // links to other documents, in their order
    int tableRows = 0;

    explicit Shape(const QString& text) {
        const QStringList lines = text.split('\n');
        for (const QString& line : lines) {
            const int level = static_cast<int>(line.indexOf(' '));
            if (line.startsWith('#')) {
                levels.append(level);
                anchors.append(Guide::anchorOf(line.mid(level + 1)));
            }
            tableRows += line.startsWith('|') ? 1 : 0;
        }
        static const QRegularExpression link(R"((!?)\[[^\]]*\]\(([^)]*)\))");
        auto found = link.globalMatch(text);
        while (found.hasNext()) {
            const auto match = found.next();
            const QString target = match.captured(2);
            const bool isPicture = !match.captured(1).isEmpty();
            (isPicture ? pictures : target.startsWith('#') ? references : others).append(target);
        }
    }
};

class GuideInBothLanguages : public WorkbenchFixture {
protected:
    Shape shapeIn(LanguageSwitch::Language language) {
        workbench->language().choose(language);
        return Shape(Guide::text());
    }
    const Shape english = shapeIn(LanguageSwitch::Language::English);
    const Shape french = shapeIn(LanguageSwitch::Language::French);
};

} // namespace

TEST_F(GuideInBothLanguages, has_the_same_chapters_pictures_tables_and_links_and_none_leads_nowhere) {
    ASSERT_GT(english.levels.size(), 8);
    EXPECT_EQ(english.levels, french.levels);
    EXPECT_EQ(english.tableRows, french.tableRows);
    EXPECT_EQ(english.others, french.others);
    ASSERT_EQ(english.references.size(), french.references.size());
    for (int i = 0; i < english.references.size(); ++i) {
        const int place = english.anchors.indexOf(english.references[i].mid(1));
        EXPECT_GE(place, 0) << english.references[i].toStdString();
        EXPECT_EQ(place, french.anchors.indexOf(french.references[i].mid(1)))
            << french.references[i].toStdString();
    }
    ASSERT_EQ(english.pictures.size(), french.pictures.size());
    for (int i = 0; i < english.pictures.size(); ++i) {
        EXPECT_TRUE(QFile::exists(Guide::folder() + french.pictures[i])) << french.pictures[i].toStdString();
        EXPECT_EQ(QString(french.pictures[i]).replace(".fr.png", ".png"), english.pictures[i]);
    }
}

TEST_F(GuideInBothLanguages, has_a_page_for_every_number_and_the_open_guide_keeps_its_page) {
    const auto place = [](const Shape& shape, int helpId) {
        return shape.anchors.indexOf(Guide::anchorOf(Guide::headingFor(helpId)));
    };
    for (const int helpId : {HelpId::projects, HelpId::tree, HelpId::wizard, HelpId::curves, HelpId::tables,
                             HelpId::messages, HelpId::importModules, HelpId::qualityCheck}) {
        workbench->language().choose(LanguageSwitch::Language::English);
        const int inEnglish = place(english, helpId);
        EXPECT_GT(inEnglish, 0) << helpId;
        workbench->language().choose(LanguageSwitch::Language::French);
        EXPECT_EQ(place(french, helpId), inEnglish) << helpId;
    }
    ApplicationInterface::returnMe()->showHelp(HelpId::qualityCheck);
    settle();
    auto* const page = dynamic_cast<HelpPage*>(workspace().currentPage());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->textCursor().block().text(), "Le contrôle qualité");
    workbench->language().choose(LanguageSwitch::Language::English);
    settle();
    EXPECT_EQ(page->textCursor().block().text(), "The quality check");
    const QTextCursor atTop = page->cursorForPosition(QPoint(40, page->fontMetrics().height()));
    EXPECT_EQ(atTop.block().text(), "The quality check") << "where one begins to read";
}
