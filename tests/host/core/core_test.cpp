#include "ExpectedWarning.h"
#include "HostTest.h"
#include "NameText.h"
#include "NaturalOrder.h"
#include "TFileBuffer.h"
#include "TPixmapCache.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <stdexcept>
#include <sys/stat.h>

namespace {

const QByteArray leftHalfRed = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                               "<rect width='10' height='10' fill='#ff0000'/></svg>";

std::string refusal(const QString& path) {
    return failure([&] { TFileBuffer(path, true); });
}

QByteArray key(const QString& name) {
    return NaturalOrder::key(name).toUtf8();
}

} // namespace

TEST(Errors, what_is_the_first_filled_text_in_utf8) {
    const QString accented = QStringLiteral("Données absentes");
    EXPECT_EQ(QString::fromUtf8(VKError(accented, "place", "advice").what()), accented);
    EXPECT_STREQ(VKError({}, {}, "advice").what(), "advice");
    EXPECT_STREQ(VKError(QString()).what(), "");
}

TEST(Errors, dispatch_reaches_the_handler_with_every_kind_of_exception) {
    QStringList told;
    const VKError::Handler before = VKError::setHandler([&](const QString& text) { told += text; });
    const VKError sliced("a", {}, "c");
    const std::exception& seenAsBase = sliced;
    VKError::dispatchError(seenAsBase);
    VKError::dispatchError(std::runtime_error("plain"));
    VKError::dispatchError(VKError(QString()));
    VKError::setHandler(before);
    ASSERT_EQ(told.size(), 3);
    EXPECT_EQ(told.mid(0, 2), QStringList({"a c", "plain"}));
    EXPECT_FALSE(told.at(2).isEmpty()) << "a failure without a text is told all the same";
}

TEST(Files, content_comes_byte_for_byte_and_only_when_asked_for) {
    const QTemporaryDir folder;
    const QByteArray content = QByteArray("a\r\n\0b\xFF", 6) + QByteArray(3 * 1024 * 1024 + 1, 'x');
    const QString path = fileWith(folder.filePath("signal é.S00"), content);
    EXPECT_EQ(TFileBuffer(path, true).data(), content);

    TFileBuffer later(path, false);
    EXPECT_TRUE(later.isEmpty());
    fileWith(path, "new");
    later.read();
    QFile::remove(path);
    EXPECT_THROW(later.read(), VKError);
    EXPECT_EQ(later.data(), "new") << "a failed reading keeps what was there";
}

TEST(Files, what_is_no_regular_file_or_too_large_is_refused_by_name_without_reading_it) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(says(refusal(pipe), "pipe")) << "opening a pipe would wait forever";
    EXPECT_TRUE(says(refusal("/dev/zero"), "regular"));
    EXPECT_TRUE(says(refusal(folder.path()), "regular"));
    EXPECT_TRUE(
        says(refusal(folder.filePath("<gone>")), "&lt;gone&gt;</b> cannot be read: it does not exist"));
    EXPECT_NE(refusal({}), "");
    const QString sparse = fileWith(folder.filePath("sparse"), {});
    ASSERT_TRUE(QFile::resize(sparse, 64LL * 1024 * 1024 * 1024));
    EXPECT_TRUE(says(refusal(sparse), "512 MiB"));
}

TEST(Pictures, a_drawing_is_rendered_in_the_size_asked_for_whatever_its_suffix) {
    const QTemporaryDir folder;
    const QString path = fileWith(folder.filePath("half.png"), leftHalfRed);
    EXPECT_EQ(TPixmapCache::pixmap(path).size(), QSize(20, 10));
    const QPixmap& large = TPixmapCache::pixmap(path, QSize(100, 100));
    ASSERT_EQ(large.size(), QSize(100, 50)) << "proportions are kept";
    const QImage image = large.toImage();
    EXPECT_EQ(image.pixelColor(48, 25), QColor(Qt::red)) << "sharp to the edge, not scaled up";
    EXPECT_EQ(image.pixelColor(51, 25).alpha(), 0);
}

TEST(Pictures, a_raster_picture_gives_way_to_the_drawing_it_was_made_from) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath("svg/x");
    QDir(folder.path()).mkpath("png/x");
    QImage blue(40, 20, QImage::Format_ARGB32);
    blue.fill(Qt::blue);
    fileWith(folder.filePath("svg/x/both.svg"), leftHalfRed);
    fileWith(folder.filePath("svg/x/broken.svg"), "<svg");
    for (const QString name : {"both", "alone", "broken"}) {
        const QString path = folder.filePath("png/x/" + name + ".png");
        ASSERT_TRUE(blue.save(path));
        const QImage shown = TPixmapCache::pixmap(path).toImage();
        EXPECT_EQ(shown.size(), blue.size());
        EXPECT_EQ(shown.pixelColor(5, 10), QColor(name == "both" ? Qt::red : Qt::blue)) << qPrintable(name);
    }
}

TEST(Pictures, a_picture_is_read_once_and_its_reference_stays) {
    const QTemporaryDir folder;
    const QString path = fileWith(folder.filePath("once.svg"), leftHalfRed);
    const QPixmap& first = TPixmapCache::pixmap(path);
    QFile::remove(path);
    for (int other = 1; other < 200; ++other) {
        fileWith(path, leftHalfRed);
        TPixmapCache::pixmap(path, QSize(other, other));
    }
    EXPECT_EQ(&TPixmapCache::pixmap(path), &first);
    EXPECT_EQ(TPixmapCache::find(path.toUtf8().constData()).cacheKey(), first.cacheKey());
}

TEST(Pictures, a_missing_picture_is_null_and_told_once) {
    const ExpectedWarning told(":/Ressources/png/toolbar/nowhere.png");
    EXPECT_TRUE(TPixmapCache::find("nowhere").isNull());
    EXPECT_TRUE(TPixmapCache::find("nowhere").isNull());
    EXPECT_EQ(told.count(), 1);
    EXPECT_TRUE(TPixmapCache::find(nullptr).isNull());
}

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
