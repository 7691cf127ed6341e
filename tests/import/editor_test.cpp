#include "ImportFixture.h"

#include "CustomImportCtrl.h"
#include "CustomImportEditor.h"
#include "GasDataCtrl.h"
#include "SourceRockCtrl.h"
#include "SourceRockEditor.h"
#include "VKRibbonGroup.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QMetaMethod>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QUrl>

namespace {

QStringList methodsOf(const QMetaObject& meta) {
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods += method.methodSignature() + ' ' + method.parameterNames().join(',');
    }
    return methods;
}

} // namespace

class ImportEditor : public ImportTest {
protected:
    ImportEditor() {
        module.createEditor();
        module.editor()->resize(1200, 300);
        module.editor()->show();
    }
    VKTreeWidget& tree() { return *module.editor()->findChild<VKTreeWidget*>(); }
    QToolButton& button() {
        return *qobject_cast<QToolButton*>(module.editor()->actionGroup()->layout()->itemAt(0)->widget());
    }
    void drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) {
            urls += QUrl::fromLocalFile(path);
        }
        data.setUrls(urls);
        QDragEnterEvent enter({4, 4}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree().viewport(), &enter);
        QDropEvent event(QPointF(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree().viewport(), &event);
    }
    void click(int row, int column) {
        const QPoint place = tree().visualItemRect(tree().topLevelItem(row)).center();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier,
                          {tree().columnViewportPosition(column) + 4, place.y()});
    }

    TestCtrl module;
};

TEST_F(ImportEditor, dropped_files_are_listed_with_their_status_in_the_order_of_the_list) {
    EXPECT_FALSE(button().isEnabled());
    EXPECT_EQ(button().text(), "Import");
    drop({"/one/x.xls", "/two/x.xls", "/z.txt"});
    ASSERT_EQ(tree().topLevelItemCount(), 3);
    const QStringList order = module.model().keys();
    for (int row = 0; row < 3; ++row) {
        QTreeWidgetItem& item = *tree().topLevelItem(row);
        EXPECT_EQ(item.text(3), order[row]);
        EXPECT_EQ(item.text(1), order[row].section('/', -1));
        EXPECT_FALSE(item.icon(2).pixmap(16).isNull());
        EXPECT_EQ(item.textAlignment(2), Qt::AlignHCenter);
    }
    EXPECT_EQ(tree().columnCount(), 3);
    QSet<QByteArray> pictures;
    for (const int code : {0, 1, 2}) {
        module.model().insert("/z.txt", code);
        module.editor()->refreshFileTree();
        const QImage icon = tree().topLevelItem(order.indexOf("/z.txt"))->icon(0).pixmap(16).toImage();
        EXPECT_FALSE(icon.isNull());
        pictures += QByteArray(reinterpret_cast<const char*>(icon.constBits()), int(icon.sizeInBytes()));
    }
    EXPECT_EQ(pictures.size(), 3);
    module.model().insert("/z.txt", 7);
    module.editor()->refreshFileTree();
    EXPECT_TRUE(tree().topLevelItem(order.indexOf("/z.txt"))->icon(0).isNull());
}

TEST_F(ImportEditor, the_button_opens_with_the_first_list_be_it_empty_and_stays_open) {
    emit module.editor()->filesDropped({});
    EXPECT_TRUE(button().isEnabled());
    drop({"/x.xls"});
    click(0, 2);
    EXPECT_TRUE(module.model().isEmpty());
    EXPECT_TRUE(button().isEnabled());
    button().click();
    EXPECT_EQ(informations(), QStringList("No files to import"));
}

TEST_F(ImportEditor, only_a_click_on_the_delete_icon_takes_a_file_out_by_its_whole_path) {
    drop({"/one/x.xls", "/two/x.xls"});
    QSignalSpy deleted(module.editor(), &VornEditor::fileDelete);
    click(0, 0);
    click(0, 1);
    EXPECT_TRUE(deleted.isEmpty());
    const QString path = tree().topLevelItem(0)->text(3);
    int rowsThen = 0;
    QObject::connect(module.editor(), &VornEditor::fileDelete, module.editor(),
                     [&] { rowsThen = tree().topLevelItemCount(); });
    click(0, 2);
    EXPECT_EQ(deleted.size(), 1);
    EXPECT_EQ(deleted.value(0).value(0).toString(), path);
    EXPECT_EQ(rowsThen, 2) << "told before the row is gone";
    EXPECT_EQ(tree().topLevelItemCount(), 1);
    EXPECT_EQ(module.model().size(), 1);
    EXPECT_FALSE(module.model().contains(path));
}

TEST_F(ImportEditor, closing_asks_the_launcher_and_the_end_leaves_the_ribbon_with_deletions_still_heard) {
    auto* const second = new TestCtrl;
    second->createEditor();
    VornEditor* const bar = second->editor();
    EXPECT_EQ(host.bars.last(), bar);
    static_cast<VKRibbonBar*>(bar)->closeRequested();
    EXPECT_EQ(host.closed, static_cast<TModuleCtrl*>(second));

    host.closed = nullptr;
    QHash<QString, int>& files = second->model();
    files.insert("/x", 0);
    int left = -1;
    host.onRemoved = [&] {
        emit bar->closeRequested();
        emit bar->filesDropped({"/y"});
        emit bar->importAsked();
        emit bar->fileDelete("/x");
        left = files.size();
    };
    delete second;
    host.onRemoved = nullptr;
    EXPECT_EQ(left, 0);
    EXPECT_EQ(host.closed, nullptr);
    EXPECT_TRUE(informations().isEmpty());
    EXPECT_FALSE(host.bars.contains(bar));
    TestCtrl without; // ends without ever having had an editor
}

TEST_F(ImportEditor, texts_are_those_of_both_languages) {
    QHash<QString, int> files;
    CustomImportEditor custom("t", files);
    GasDataEditor gas("t", files);
    SourceRockEditor rock("t", files);
    EXPECT_EQ(tree().dropText(), "Drop here your Excel files containing the Gas data.");
    EXPECT_EQ(custom.dropText(), "Drop here your Excel files containing your data to import.");
    EXPECT_EQ(rock.dropText(),
              "Drop here your Source Rock data:\n - Raw file from RockEval VI (.S00 and .R00 "
              "files)\n - Excel files");
    const FrenchTexts french;
    EXPECT_EQ(custom.dropText(), "Déposer ici vos fichiers Excels contenant vos données à importer.");
    EXPECT_EQ(gas.dropText(), "Déposer ici vos fichiers Excels contenant vos données Gaz.");
    EXPECT_EQ(rock.dropText(), "Déposer ici vos données Source Rock :\n - Fichiers bruts de RockEval VI (les "
                               "fichiers .S00 et .R00)\n - Fichiers Excel");
    for (VornEditor* const bar : {static_cast<VornEditor*>(&custom), static_cast<VornEditor*>(&gas),
                                  static_cast<VornEditor*>(&rock)}) {
        EXPECT_FALSE(bar->modulePixmap().isNull());
        EXPECT_EQ(bar->getIdForHelp(), 120);
    }
    rock.setupEditor(nullptr); // a bar without a module has its own button all the same
    const QTreeWidgetItem& header = *rock.findChild<VKTreeWidget*>()->headerItem();
    EXPECT_EQ(header.text(0) + '|' + header.text(1) + '|' + header.text(2), "Status|Nom du fichier|");
}

TEST_F(ImportEditor, meta_objects_name_signals_and_slots_in_this_order) {
    EXPECT_EQ(methodsOf(VornEditor::staticMetaObject),
              QStringList({"closeRequested() ", "filesDropped(QStringList) ", "importAsked() ",
                           "fileDelete(QString) fileName", "slotDrop(QStringList) ", "slotImportButton() ",
                           "slotItemClicked(QTreeWidgetItem*,int) clickedItem,column"}));
    EXPECT_EQ(methodsOf(VornCtrl::staticMetaObject),
              QStringList({"slotEditorHasBeenClosed() ", "slotFilesDropped(QStringList) droppedFiles",
                           "slotImportAsked() ", "slotDeleteFileFromModel(QString) fileName",
                           "setVornParameters(QAbstractItemModel*) templateDataset",
                           "updateFileStatus(QString,importStatus) fileName,code"}));
    GasDataCtrl gas;
    EXPECT_EQ(gas.qt_metacast("VKModuleCtrl"), static_cast<VKModuleCtrl*>(&gas));
    EXPECT_NE(gas.qt_metacast("VKModuleCtrl"), static_cast<void*>(&gas));
    EXPECT_STREQ(gas.metaObject()->className(), "VornCtrl");
    EXPECT_EQ(gas.key(), "vkVorn");
    CustomImportCtrl custom;
    SourceRockCtrl rock;
    for (VornCtrl* const each :
         {static_cast<VornCtrl*>(&gas), static_cast<VornCtrl*>(&custom), static_cast<VornCtrl*>(&rock)}) {
        each->createEditor();
    }
    EXPECT_EQ(host.bars.value(1)->title() + '|' + host.bars.value(2)->title() + '|' +
                  host.bars.value(3)->title(),
              "Gas data|Custom import|Source Rock");
}
