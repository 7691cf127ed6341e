#include "VKDatabaseVornMGR.h"

#include "MessageCollector.h"
#include "ProjectFixture.h"
#include "SqlConnection.h"
#include "TVornCompoundPrivate.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <thread>

namespace {

const QString none = QStringLiteral("-9999");

/// One catalogue in a folder of its own, and what an import of a table does with it.
class Catalogue : public ProjectTest {
protected:
    Catalogue() {
        MessageLoggerInterface::setDefaultLogger(&log);
        manager.setPlace(file());
    }
    ~Catalogue() override { manager.setPlace({}); }

    QString file() const { return path(QStringLiteral("new/folder/p.vorncatalogue")); }

    VKVornRecord* addCompound(const QString& name) {
        TechDB::TVornCompoundPrivate compound(QStringLiteral("0"));
        compound.setCompoundName(name);
        compound.setAnalysisType(QStringLiteral("User defined"));
        return working.addCompound(&compound, none);
    }

    VKObject2* addParameter(const QString& name, const QString& formula) {
        return working.createParameter(name, name, formula, "User defined", 0, "User defined", "User defined",
                                       "none", "User defined", "", {});
    }

    /// Compound, pair and parameter, as an import makes them; the formula.
    QString define(const QString& name) {
        if (working.findEIC("none") == nullptr) {
            working.addEIC("none", none);
        }
        const QString compound = addCompound(name)->recordId();
        QString formula = QStringLiteral("[%1]").arg(working.addPair(compound, "none", none)->recordKey());
        EXPECT_NE(addParameter(name, formula), nullptr);
        return formula;
    }

    std::string errors() const { return log.messages(MessageLevel::Error).join("|").toStdString(); }

    MessageCollector log;
    VKDatabaseVornMGR& manager = *VKDatabaseVornMGR::getInstance();
    VKVornDatabaseInterface& working = *manager.db(9);
    VKVornDatabaseInterface& published = *manager.db(10);
};

} // namespace

TEST_F(Catalogue, what_was_added_is_found_under_what_the_record_said) {
    EXPECT_EQ(working.findEIC("none"), nullptr);
    EXPECT_EQ(working.addEIC("none", none)->recordId(), "none") << "made and found must give the same";
    EXPECT_EQ(working.findEIC("none")->name(), "none");
    const VKVornRecord* const compound = addCompound("Gamma index");
    VKObject2* const found = working.findByName(" Gamma\nindex ");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->name(), "Gamma index");
    EXPECT_EQ(working.compoundRecord(found), compound);
    EXPECT_EQ(working.findPair(compound->recordId(), "none"), nullptr);
    const VKVornRecord* const pair = working.addPair(compound->recordId(), "none", none);
    EXPECT_EQ(working.pairRecord(working.findPair(compound->recordId(), "none")), pair);
    EXPECT_EQ(working.pairRecord(found), nullptr) << "a compound is no pair";
    EXPECT_EQ(working.compoundRecord(nullptr), nullptr);
    EXPECT_EQ(manager.db(8), nullptr);
    EXPECT_TRUE(log.entries().empty()) << errors();
}

TEST_F(Catalogue, only_what_was_committed_is_published_and_the_next_start_finds_it) {
    addCompound("compound alone");
    define("Gamma");
    EXPECT_NE(working.lookupParameter("Gamma"), nullptr);
    EXPECT_EQ(published.lookupParameter("Gamma"), nullptr);
    EXPECT_EQ(published.findByName("Gamma"), nullptr);
    working.commitParameters();
    manager.close();
    EXPECT_NE(published.lookupParameter("Gamma"), nullptr);
    EXPECT_NE(published.findByName("Gamma"), nullptr);
    EXPECT_NE(published.findEIC("none"), nullptr);
    EXPECT_EQ(published.findByName("compound alone"), nullptr) << "a name without a parameter is free";
    EXPECT_EQ(published.findByName("gamma"), nullptr) << "letter by letter";
    manager.close();
    EXPECT_EQ(
        sql(file(), {"SELECT p.compute_formula = '[' || q.id || ']' AND p.display_order = 0 AND"
                     " p.eic_list = 'none' AND p.literature_reference = '' AND c.number_value IS NULL AND"
                     " t.value = 'User defined' FROM parameters p, pairs q JOIN compounds c ON"
                     " c.id = q.compound_id JOIN compound_properties t ON t.compound_id = c.id AND"
                     " t.name = 'AnalysisType' WHERE p.name = 'Gamma'"})
            .toInt(),
        1);
}

TEST_F(Catalogue, the_draft_of_an_import_that_broke_off_can_be_finished) {
    const QString formula = define("Gamma");
    manager.close();
    EXPECT_NE(addParameter("Gamma", formula), nullptr);
    working.commitParameters();
    EXPECT_EQ(addParameter("Gamma", "[77]"), nullptr) << "what is published stays as it is";
    EXPECT_TRUE(says(errors(), "<b>Gamma</b> already"));
}

TEST_F(Catalogue, built_in_parameters_are_published_under_all_their_names) {
    const VKObject2* const toc = published.lookupParameter("TOC");
    ASSERT_NE(toc, nullptr);
    EXPECT_EQ(toc->type(), VKObjectType::Parameter);
    EXPECT_LT(toc->key(), 0);
    EXPECT_EQ(published.lookupParameter("Carbone Organique total"), toc);
    EXPECT_EQ(published.lookupParameter(" (%) "), nullptr);
    EXPECT_EQ(published.findByName("TOC"), nullptr) << "a parameter is no compound";
    EXPECT_EQ(working.lookupParameter("TOC"), nullptr);
}

TEST_F(Catalogue, what_can_not_be_is_null_and_an_error_that_says_why) {
    const auto refused = [&](const void* answer, const std::string& reason) {
        EXPECT_EQ(answer, nullptr);
        EXPECT_TRUE(says(errors(), reason));
        log.clear();
    };
    working.addEIC("none", none);
    const QString compound = addCompound("Gamma")->recordId();
    working.addPair(compound, "none", none);
    refused(addCompound("Gamma"), "<b>Gamma</b> already");
    refused(addCompound(" "), "can't be a name");
    refused(addCompound(QString(300, '<')), "&lt;");
    refused(working.addCompound(nullptr, none), "no compound");
    refused(working.addEIC("none", none), "already");
    refused(working.addEIC("x", "nan"), "<b>nan</b>");
    refused(working.addPair(compound, "none", none), "already");
    refused(working.addPair("1; DROP TABLE pairs", "none", none), "doesn't hold");
    refused(working.addPair(compound, "' OR 1 = 1 --", none), "doesn't hold <b>' OR");
    refused(addParameter("", "[1]"), "can't be a name");
    refused(published.addEIC("x", none), "published catalogue takes nothing");
    published.commitParameters();
    refused(nullptr, "published catalogue takes nothing");
    EXPECT_EQ(working.findPair("x", "none"), nullptr);
    EXPECT_TRUE(log.entries().empty()) << "what isn't there is no failure";
}

TEST_F(Catalogue, files_of_another_kind_or_a_newer_version_are_refused_and_not_touched) {
    working.addEIC("none", none);
    manager.close();
    sql(file(), {"UPDATE catalogue SET schema_version = 9"});
    const QByteArray bytes = bytesOf(file());
    EXPECT_EQ(working.findEIC("none"), nullptr);
    EXPECT_TRUE(says(errors(), "newer version"));
    EXPECT_EQ(bytesOf(file()), bytes);
    manager.setPlace(path()); // a project
    EXPECT_EQ(working.addEIC("none", none), nullptr);
    EXPECT_TRUE(says(errors(), "is not a catalogue"));
    EXPECT_NE(failure([&] { TechDB::TDatabase::open(file()); }), "");
    fileWith(path("file"), "x");
    manager.setPlace(path("file/p.vorncatalogue"));
    EXPECT_EQ(working.findEIC("none"), nullptr);
    EXPECT_TRUE(says(errors(), "can't be created"));
    manager.setPlace({});
    EXPECT_TRUE(
        manager.place().startsWith(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
}

TEST_F(Catalogue, two_windows_make_and_write_one_catalogue) {
    // Each with its own connection, as two processes have it; many times, for they must meet while making it.
    constexpr int each = 4;
    constexpr int rounds = 20;
    const auto window = [](const QString& place, const QString& prefix, QStringList* failures) {
        VornCatalogue catalogue;
        catalogue.setPlace(place);
        for (int i = 0; i < each; ++i) {
            try {
                catalogue.store(TechDB::CatalogueStore::Scope::All)
                    .addEic(prefix + QString::number(i), -9999.0);
            } catch (const VKError& error) {
                failures->append(error.message());
            }
        }
    };
    QStringList files;
    for (int round = 0; round < rounds; ++round) {
        const QString name = QString("%1.vorncatalogue").arg(round, 2, 10, QChar('0'));
        const QString place = QFileInfo(file()).path() + "/" + name;
        QStringList failures[2];
        std::thread other(window, place, "a", &failures[0]);
        window(place, "b", &failures[1]);
        other.join();
        ASSERT_EQ((failures[0] + failures[1]).join("; ").toStdString(), "");
        ASSERT_EQ(sql(place, {"SELECT count(*) FROM eics"}).toInt(), 2 * each);
        files.append(name);
    }
    EXPECT_EQ(QDir(QFileInfo(file()).path()).entryList(QDir::Files), files);
}
