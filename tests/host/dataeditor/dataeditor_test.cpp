#include "TDataEditor2Ctrl.h"

#include "FullDisk.h"
#include "Interfaces.h"
#include "MessageCollector.h"
#include "ProjectFixture.h"
#include "Transaction.h"
#include "VKDataModelGeneric.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStandardItemModel>

#include <cmath>
#include <optional>
#include <stdexcept>

using TechDB::SampleTable;

namespace {

class DataEditor : public ProjectTest {
protected:
    DataEditor() {
        MessageLoggerInterface::setDefaultLogger(&log);
        project.database = database.get();
    }

    /// One column without a header, its rows with.
    static std::unique_ptr<VKDataModelGeneric> column(const QStringList& rows, const QVariantList& cells) {
        auto model = std::make_unique<VKDataModelGeneric>();
        model->createEmpty(1, rows.size());
        for (int row = 0; row < rows.size(); ++row) {
            model->setHeaderData(row, Qt::Vertical, rows.at(row), VKDataModel::datasetRole);
            model->setData(model->index(row, 0), cells.at(row), VKDataModel::datasetRole);
        }
        return model;
    }

    static bool save(TDataEditor2Ctrl& editor, const QString& dataset, const QString& sample,
                     const QVariant& cell = 1.5) {
        return editor.save(column({"TOC"}, {cell}).get(), dataset, sample, VKDataModel::datasetRole, nullptr);
    }

    SampleTable stored(const QString& dataset, const QString& sample) const {
        const auto found = database->findSample(database->getWell(dataset)->key(), sample);
        return found ? database->sampleTable(found->key) : SampleTable();
    }

    QStringList samples(const QString& dataset) const {
        QStringList names;
        for (const TechDB::SampleInfo& sample : database->samples(database->getWell(dataset)->key())) {
            names.append(sample.name);
        }
        return names;
    }

    std::string errors() const { return log.messages(MessageLevel::Error).join("|").toStdString(); }

    MessageCollector log;
    Project project;
};

} // namespace

TEST_F(DataEditor, numbers_are_stored_as_numbers_texts_as_texts_and_nothing_as_nothing) {
    const auto model = column({"double", "float", "int", "big", "byte", "text", "blank", "empty", "null"},
                              {0.1 + 0.2, 0.5F, -3, 9007199254740993LL, QVariant::fromValue<uchar>(200),
                               "007", " ", "", QVariant()});
    model->setProperties({TProperty("Vorn_parameter", "true")});
    {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(editor.save(model.get(), "D", "S", VKDataModel::datasetRole, nullptr));
    }
    reopen();
    const SampleTable table = stored("D", "S");
    EXPECT_EQ(table.columnNames, QStringList("1"));
    const QVector<QVariant> expected{0.1 + 0.2, 0.5, -3.0, 9007199254740992.0, 200.0, "007", " ", {}, {}};
    EXPECT_EQ(table.cells, expected);
    EXPECT_EQ(table.cells.at(2).type(), QVariant::Double);
    EXPECT_EQ(table.properties.at(0).name(), "Vorn_parameter");
}

TEST_F(DataEditor, a_role_of_its_own_is_read_from_any_model) {
    QStandardItemModel model(2, 2);
    model.setHeaderData(0, Qt::Horizontal, "shown", Qt::DisplayRole);
    model.setHeaderData(1, Qt::Horizontal, 12.5, Qt::UserRole);
    model.setData(model.index(1, 0), "shown", Qt::DisplayRole);
    model.setData(model.index(1, 1), "meant", Qt::UserRole);
    {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(editor.save(&model, "D", "S", Qt::UserRole, database.get()));
    }
    const SampleTable table = stored("D", "S");
    EXPECT_EQ(table.columnNames, QStringList({"1", "12.5"}));
    EXPECT_EQ(table.rowNames, QStringList({"1", "2"}));
    EXPECT_EQ(table.cells, (QVector<QVariant>{{}, {}, {}, "meant"}));
}

TEST_F(DataEditor, a_sample_saved_twice_keeps_all_and_gets_columns_merged_by_row_names) {
    {
        TDataEditor2Ctrl editor;
        const auto first = column({"TOC", "Tmax", "Tmax"}, {1.0, 2.0, 3.0});
        first->setProperties({TProperty("a", "1")});
        const auto second = column({"Tmax", "S2", "Tmax", "Tmax"}, {20.0, 30.0, 40.0, 50.0});
        second->setProperties({TProperty("a", "1"), TProperty("a", "2")});
        EXPECT_TRUE(editor.save(first.get(), "D", "Sample 3", VKDataModel::datasetRole, nullptr));
        EXPECT_TRUE(editor.save(second.get(), "D", "Sample\n3 ", VKDataModel::datasetRole, nullptr));
    }
    const SampleTable table = stored("D", "Sample 3");
    EXPECT_EQ(table.columnNames, QStringList({"1", "2"}));
    EXPECT_EQ(table.rowNames, QStringList({"TOC", "Tmax", "Tmax", "S2", "Tmax"}));
    EXPECT_EQ(table.cells, (QVector<QVariant>{1.0, {}, 2.0, 20.0, 3.0, 40.0, {}, 30.0, {}, 50.0}));
    ASSERT_EQ(table.properties.size(), 2);
    EXPECT_EQ(table.properties.at(1).value(), "2");
}

TEST_F(DataEditor, overwriting_replaces_a_dataset_in_one_go_under_its_key) {
    const VKObject2Well* const well = database->addWell("D");
    database->addSample(well->key(), "old", {{"r"}, {"c"}, {1.0}, {}});
    QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    const auto other = TechDB::TDatabase::open(path());
    {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(save(editor, "D", "Sample 1"));
        EXPECT_TRUE(save(editor, "D", "Sample 2"));
        EXPECT_TRUE(save(editor, "E", "Sample 1"));
        EXPECT_EQ(other->samples(well->key()).at(0).name, "old") << "until the object ends";
        EXPECT_EQ(changes.count(), 0);
    }
    EXPECT_EQ(database->getWell("D"), well);
    EXPECT_EQ(other->samples(well->key()).size(), 2);
    EXPECT_EQ(samples("E"), QStringList("Sample 1"));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).value<TechDB::ObjectChanges>().size(), 3)
        << "D changed, E added and changed";
}

TEST_F(DataEditor, what_another_window_stored_since_the_name_was_looked_up_is_not_overwritten) {
    const auto other = TechDB::TDatabase::open(path());
    EXPECT_EQ(database->getWell("D"), nullptr) << "so nobody is asked";
    const qint64 theirs = other->addWell("D")->key();
    other->addSample(theirs, "theirs", {{"r"}, {"c"}, {1.0}, {}});
    {
        TDataEditor2Ctrl editor;
        EXPECT_FALSE(save(editor, "D", "Sample 1"));
        EXPECT_FALSE(save(editor, "D", "Sample 2"));
    }
    EXPECT_TRUE(says(errors(), "in the meantime"));
    EXPECT_EQ(samples("D"), QStringList("theirs"));
    ASSERT_NE(database->getWell("D"), nullptr) << "now one can be asked";
    {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(save(editor, "D", "Sample 1"));
    }
    EXPECT_EQ(samples("D"), QStringList("Sample 1"));
}

TEST_F(DataEditor, a_save_that_fails_says_why_and_leaves_no_trace) {
    database->addSample(database->addWell("D")->key(), "old", {{"r"}, {"c"}, {1.0}, {}});
    TDataEditor2Ctrl editor;
    const auto refused = [&](QAbstractItemModel* model, const QString& dataset, const QString& sample,
                             const std::string& reason) {
        log.clear();
        EXPECT_FALSE(editor.save(model, dataset, sample, VKDataModel::datasetRole, nullptr));
        EXPECT_EQ(log.entries().size(), 1U);
        EXPECT_TRUE(says(errors(), reason));
    };
    const auto good = column({"TOC"}, {1.0});
    const auto infinite = column({"TOC"}, {std::nan("")});
    const auto picture = column({"TOC"}, {QVariant::fromValue(QModelIndex())});
    VKDataModelGeneric large;
    large.createEmpty(10'001, 2'000);
    refused(nullptr, "D", "S", "no table");
    refused(good.get(), " D", "S", "begins or ends with a blank");
    refused(good.get(), "D", " \n", "it is empty");
    refused(good.get(), "D", QString(256, 'x'), "more than 255");
    refused(infinite.get(), "D", "S<i>", "<b>S&lt;i&gt;</b>");
    refused(infinite.get(), "D", "S", "no finite number");
    refused(picture.get(), "new", "S", "row 1, column 1");
    refused(&large, "new", "S", "too large");
    EXPECT_EQ(samples("D"), QStringList("old")) << "nothing took its place";
    EXPECT_EQ(database->getWell("new"), nullptr);

    EXPECT_TRUE(save(editor, "D", "S"));
    refused(infinite.get(), "D", "S", "no finite number");
    EXPECT_TRUE(save(editor, "D", "T"));
    const auto second = TechDB::TDatabase::create(path("second.vornproj"));
    EXPECT_FALSE(editor.save(good.get(), "D", "S", VKDataModel::datasetRole, second.get()));
    EXPECT_EQ(samples("D"), QStringList({"S", "T"}));
    EXPECT_EQ(stored("D", "S").columnNames.size(), 1);
}

TEST_F(DataEditor, what_was_saved_before_an_exception_stays) {
    try {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(save(editor, "D", "S"));
        EXPECT_FALSE(save(editor, "D", "T", std::nan("")));
        throw std::runtime_error("the import's own");
    } catch (const std::runtime_error&) {
        reopen();
    }
    EXPECT_EQ(samples("D"), QStringList("S"));
}

TEST_F(DataEditor, without_a_project_or_while_another_window_writes_nothing_is_saved) {
    {
        project.database = nullptr;
        TDataEditor2Ctrl editor;
        EXPECT_FALSE(save(editor, "D", "S"));
        EXPECT_TRUE(says(errors(), "No project is open"));
    }
    project.database = database.get();
    const auto other = TechDB::TDatabase::open(path());
    const TechDB::Transaction writing(*other);
    TDataEditor2Ctrl editor;
    EXPECT_FALSE(save(editor, "D", "S"));
    QElapsedTimer second;
    second.start();
    EXPECT_FALSE(save(editor, "D", "T"));
    EXPECT_LT(second.elapsed(), 2000) << "ten thousand samples must not wait five seconds each";
    EXPECT_EQ(log.messages(MessageLevel::Error).filter("another window").size(), 2);
}

TEST_F(DataEditor, a_commit_that_can_not_be_written_is_told_and_leaves_the_old_dataset) {
    database->addSample(database->addWell("D")->key(), "old", {{"r"}, {"c"}, {1.0}, {}});
    for (const bool failsOnTheWay : {false, true}) {
        std::optional<FullDisk> disk;
        const auto saveOnto = [&] {
            TDataEditor2Ctrl editor;
            EXPECT_TRUE(save(editor, "D", "S"));
            disk.emplace();
            if (failsOnTheWay) {
                throw std::runtime_error("something else");
            }
        };
        if (failsOnTheWay) {
            EXPECT_THROW(saveOnto(), std::runtime_error);
        } else {
            EXPECT_THROW(saveOnto(), VKError);
        }
        disk.reset();
        EXPECT_EQ(samples("D"), QStringList("old"));
    }
    EXPECT_TRUE(says(errors(), "could not be stored; the project is as it was"));
}

TEST_F(DataEditor, when_the_disk_fills_up_in_between_nothing_half_done_stays) {
    database->addSample(database->addWell("D")->key(), "old", {{"r"}, {"c"}, {1.0}, {}});
    const auto fillUp = [this] {
        TDataEditor2Ctrl editor;
        EXPECT_TRUE(save(editor, "D", "S"));
        {
            const FullDisk disk;
            EXPECT_FALSE(save(editor, "D", "T", QString(10'000'000, 'x'))) << "more than any cache holds";
        }
        EXPECT_FALSE(save(editor, "D", "U")) << "alone it would join the old samples";
    };
    EXPECT_THROW(fillUp(), VKError);
    EXPECT_TRUE(says(errors(), "took back all"));
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 2) << "one a sample";
    EXPECT_EQ(samples("D"), QStringList("old"));
}
