#include "ModalAnswers.h"
#include "ModuleLauncher.h"
#include "MouseDrop.h"
#include "TDatabase.h"
#include "TextPairsCtrl.h"
#include "VKTreeWidget.h"
#include "WorkbenchFixture.h"

#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

/// The workbench with an empty project and the example module in its ribbon.
class TextPairsRoad : public WorkbenchFixture {
protected:
    TextPairsRoad() {
        workbench->projects().create(place());
        auto controller = std::make_unique<TextPairsCtrl>();
        controller->createEditor();
        dynamic_cast<ModuleLauncher&>(*ModuleLauncherInterface::returnMe()).adopt(controller.release());
    }

    /// Drops the files as a mouse would and presses Import; the wizard is confirmed as it opens.
    void import(const QStringList& paths) {
        const ModalAnswers answers;
        const QList<VKRibbonModuleBar*> bars = workbench->window().findChildren<VKRibbonModuleBar*>();
        ASSERT_EQ(bars.size(), 1);
        QMimeData data;
        QList<QUrl> files;
        std::transform(paths.begin(), paths.end(), std::back_inserter(files), &QUrl::fromLocalFile);
        data.setUrls(files);
        MouseDrop::on(*bars[0]->findChild<VKTreeWidget*>()->viewport(), data);
        ASSERT_TRUE(QMetaObject::invokeMethod(bars[0], "slotImportButton"));
        dialogs = answers.asked().size();
    }

    QString file(const QString& name, const QByteArray& content) const {
        QFile written(path(name));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
        return written.fileName();
    }

    int dialogs = 0;
};

TEST_F(TextPairsRoad, a_dropped_text_becomes_a_dataset_and_lines_left_out_are_named) {
    import({file("carbon.txt", "Sample\tTOC (%)\r\nA-1\t2,5\r\n\r\nA-2\t0,75\r\nno value\r\nA-3\t1\t2\r\n"
                               "S\xE9te;4,25\n")});
    EXPECT_EQ(errors(), QStringList());
    EXPECT_EQ(dialogs, 1);
    ASSERT_EQ(project().datasets().size(), 1);
    const auto samples = project().sampleTables(project().datasets()[0].key);
    ASSERT_EQ(samples.size(), 4);
    EXPECT_EQ(project().datasets()[0].name + samples.last().first, "Text pairs-carbon.txtText pairs");
    const TechDB::SampleTable& table = samples.last().second; // a row a column of the file, a column a sample
    EXPECT_EQ(table.columnNames, QStringList({"A-1", "A-2", QString::fromUtf8("Séte")}));
    ASSERT_EQ(table.rowNames.size(), 2) << table.rowNames.join(", ").toStdString();
    EXPECT_EQ(table.rowNames[1], "TOC");
    EXPECT_EQ(table.cell(1, 0), QVariant(2.5));
    EXPECT_EQ(table.cell(1, 2), QVariant(4.25));
    const QStringList warnings = messages(MessageLevel::Warning);
    EXPECT_EQ(warnings.filter("carbon.txt, line 5: not two").size(), 1);
    EXPECT_EQ(warnings.filter("carbon.txt, line 6: not two").size(), 1);
}

TEST_F(TextPairsRoad, what_is_no_table_is_refused_by_name_and_the_rest_comes_in) {
    QDir(path({})).mkpath("folder.txt");
    import({file("bytes.txt", QByteArray("a\tb\0c\n", 6)), file("words.txt", "one\ntwo\n"),
            path("folder.txt"), file("long.txt", "a\tb\n" + QByteArray(1'000'000, '\n')),
            file("<i>.txt", "Sample;TOC\nA;1\nB;2\n")});
    ASSERT_EQ(project().datasets().size(), 1);
    EXPECT_EQ(project().datasets()[0].name, "Text pairs-<i>.txt");
    EXPECT_EQ(errors().size(), 4) << errors().join('\n').toStdString();
    for (const char* const told : {"bytes.txt can't be imported: it holds no text",
                                   "words.txt can't be imported: no line of it has two columns",
                                   "folder.txt can't be imported: it is no regular file",
                                   "long.txt can't be imported: it has more than 1000000 lines"}) {
        EXPECT_EQ(errors().filter(told).size(), 1) << told;
    }
}

TEST_F(TextPairsRoad, warnings_are_cut_off) {
    import({file("holes.txt", "Sample\tTOC\nA\t1\n" + QByteArray("hole\n").repeated(1000))});
    EXPECT_EQ(project().datasets().size(), 1);
    EXPECT_EQ(messages(MessageLevel::Warning).filter("left out").size(), 20);
}
