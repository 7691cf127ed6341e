#include "Dragging.h"
#include "ProjectFixture.h"

#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"

#include <QTest>

using TechDB::TDatabase;

namespace {

class Drags : public ProjectTest {
protected:
    static QByteArray bytesOf(const QList<const VKObject2*>& objects) {
        const std::unique_ptr<QMimeData> data(VKObject2Decoder::encode(objects));
        return data->data(VKObject2Decoder::mimeType());
    }
    static std::unique_ptr<QMimeData> dragOf(const QByteArray& bytes) {
        auto data = std::make_unique<QMimeData>();
        data->setData(VKObject2Decoder::mimeType(), bytes);
        return data;
    }
    static QList<const VKObject2*> decoded(const QByteArray& bytes) {
        return VKObject2Decoder::decodeObject(dragOf(bytes).get());
    }
    static bool accepted(const QByteArray& bytes) { return VKObject2Decoder::canDecode(dragOf(bytes).get()); }

    const VKObject2Analysis* a = database->addAnalysis("a", {}, ramp());
    const VKObject2Analysis* b = database->addAnalysis("b", {}, ramp());
    const VKObject2Well* well = database->addWell("d");
};

QStringList shown(const QTreeWidget& list) {
    QStringList texts;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        texts.append(list.topLevelItem(i)->text(0));
    }
    return texts;
}

} // namespace

TEST_F(Drags, objects_arrive_in_order_and_are_the_same_objects) {
    const QByteArray bytes = bytesOf({b, a->TIC(), well, a});
    EXPECT_TRUE(accepted(bytes));
    EXPECT_EQ(decoded(bytes), QList<const VKObject2*>({b, a->TIC(), well, a}));
    EXPECT_EQ(decoded(bytes).at(1)->type(), VKObjectType::Signal);

    const std::unique_ptr<TDatabase> later = TDatabase::open(place());
    ASSERT_EQ(decoded(bytes).size(), 4);
    EXPECT_EQ(decoded(bytes).at(0)->db(), later.get());
}

TEST_F(Drags, what_is_gone_is_left_out_and_a_closed_project_takes_no_drop) {
    const QByteArray bytes = bytesOf({a, b, nullptr});
    database->removeAnalysis(a->key());
    EXPECT_EQ(decoded(bytes), QList<const VKObject2*>({b}));
    database.reset();
    EXPECT_FALSE(accepted(bytes));
    EXPECT_TRUE(decoded(bytes).isEmpty());
    reopen();
    EXPECT_EQ(decoded(bytes).size(), 1) << "a drag outlives the window it came from";
}

TEST_F(Drags, hostile_data_decode_to_nothing) {
    const QByteArray bytes = bytesOf({a, b});
    for (int length = 0; length < bytes.size(); ++length) {
        const bool wholeEntry = length == bytes.size() - 28;
        EXPECT_EQ(decoded(bytes.left(length)).size(), wholeEntry ? 1 : 0) << length;
        EXPECT_EQ(accepted(bytes.left(length)), wholeEntry) << length;
    }
    EXPECT_TRUE(decoded(bytes + 'x').isEmpty());
    const QByteArray entry = bytesOf({a}).mid(8);
    const QByteArray foreign = QByteArray(bytes).replace(8, 56, QByteArray(56, '\x11'));
    EXPECT_FALSE(accepted(foreign));
    EXPECT_TRUE(decoded(foreign).isEmpty());
    for (const char* typeAndKey :
         {"000000630000000000000001", "ffffffff0000000000000001", "000000017fffffffffffffff",
          "00000002ffffffffffffffff", "000000030000000000000000"}) {
        EXPECT_TRUE(decoded("TAVRELO1" + entry.left(16) + QByteArray::fromHex(typeAndKey)).isEmpty())
            << typeAndKey;
    }
    EXPECT_TRUE(decoded("TAVRELO1" + entry.repeated(1'000'001)).isEmpty());
    QMimeData text;
    text.setText("a");
    EXPECT_FALSE(VKObject2Decoder::canDecode(&text));
    EXPECT_FALSE(VKObject2Decoder::canDecode(nullptr));
    EXPECT_TRUE(VKObject2Decoder::decodeObject(nullptr).isEmpty());
}

TEST_F(Drags, every_flipped_byte_gives_known_objects_or_none) {
    const QByteArray bytes = bytesOf({a, well});
    for (int i = 0; i < bytes.size(); ++i) {
        for (const int flip : {0x01, 0x02, 0x80, 0xff}) {
            QByteArray changed = bytes;
            changed[i] = static_cast<char>(changed.at(i) ^ flip);
            for (const VKObject2* object : decoded(changed)) {
                EXPECT_TRUE(object == a || object == a->TIC() || object == b || object == b->TIC() ||
                            object == well);
            }
        }
    }
}

TEST_F(Drags, an_automatic_list_takes_what_it_can_show_and_another_leaves_it_to_its_listeners) {
    const auto drag = dragOf(bytesOf({well, b, a->TIC(), a}));
    VKListViewSignal list(nullptr, true);
    EXPECT_TRUE(deliver<QDragEnterEvent>(list.viewport(), *drag));
    EXPECT_TRUE(deliver<QDragMoveEvent>(list.viewport(), *drag));
    deliver<QDropEvent>(list.viewport(), *drag);
    EXPECT_EQ(shown(list), QStringList({"b", "a", "a"})) << "a dataset has no signal";
    QMimeData text;
    text.setText("b");
    EXPECT_FALSE(deliver<QDragEnterEvent>(list.viewport(), text));

    VKListViewSignal passive(nullptr, true);
    passive.setAutoMode(false);
    EXPECT_FALSE(deliver<QDragEnterEvent>(passive.viewport(), *drag));
    deliver<QDropEvent>(passive.viewport(), *drag);
    EXPECT_EQ(passive.topLevelItemCount(), 0);
    passive.addSignal(b);
    passive.addSignal(b->TIC());
    passive.addSignal(nullptr);
    EXPECT_EQ(shown(passive), QStringList({"b", "b"}));
}

TEST_F(Drags, the_delete_key_empties_the_list_only_where_keys_are_used_and_never_the_project) {
    VKListViewSignal list(nullptr, true);
    list.addSignal(a);
    list.addSignal(b);
    list.selectAll();
    list.setUseKeyPress(false);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(list.topLevelItemCount(), 2);
    list.setUseKeyPress(true);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(list.topLevelItemCount(), 0);
    EXPECT_EQ(analysisNames(), QStringList({"a", "b"}));

    VKListViewSignal single(nullptr, false);
    single.addSignal(a);
    single.addSignal(b);
    single.selectAll();
    EXPECT_LT(single.selectedItems().size(), 2);
}
