#include "ExpectedWarning.h"
#include "TPixmapCache.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

const QByteArray leftHalfRed = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                               "<rect width='10' height='10' fill='#ff0000'/></svg>";

QString write(const QString& path, const QByteArray& content) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return path;
}

} // namespace

TEST(Pictures, a_drawing_is_rendered_in_the_size_asked_for_whatever_its_suffix) {
    const QTemporaryDir folder;
    const QString path = write(folder.filePath("half.png"), leftHalfRed);
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
    for (const char* name : {"png/x/both.png", "png/x/alone.png", "png/x/broken.png"}) {
        ASSERT_TRUE(blue.save(folder.filePath(name)));
    }
    write(folder.filePath("svg/x/both.svg"), leftHalfRed);
    write(folder.filePath("svg/x/broken.svg"), "<svg");
    const QImage both = TPixmapCache::pixmap(folder.filePath("png/x/both.png")).toImage();
    EXPECT_EQ(both.size(), blue.size());
    EXPECT_EQ(both.pixelColor(5, 10), QColor(Qt::red));
    EXPECT_EQ(TPixmapCache::pixmap(folder.filePath("png/x/alone.png")).toImage().pixelColor(5, 5),
              QColor(Qt::blue));
    EXPECT_EQ(TPixmapCache::pixmap(folder.filePath("png/x/broken.png")).size(), blue.size());
}

TEST(Pictures, a_picture_is_read_once_and_its_reference_stays) {
    const QTemporaryDir folder;
    const QString path = write(folder.filePath("once.svg"), leftHalfRed);
    const QPixmap& first = TPixmapCache::pixmap(path);
    QFile::remove(path);
    for (int other = 1; other < 200; ++other) {
        write(path, leftHalfRed);
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
