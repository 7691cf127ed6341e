#include "TFileBuffer.h"
#include "VKError.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

QString write(const QString& path, const QByteArray& content) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return path;
}

QString refusal(const QString& path) {
    try {
        const TFileBuffer buffer(path, true);
    } catch (const VKError& error) {
        return error.message();
    }
    return {};
}

} // namespace

TEST(Files, content_comes_byte_for_byte_and_only_when_asked_for) {
    const QTemporaryDir folder;
    const QByteArray content = QByteArray("a\r\n\0b\xFF", 6) + QByteArray(3 * 1024 * 1024 + 1, 'x');
    const QString path = write(folder.filePath("signal é.S00"), content);
    EXPECT_EQ(TFileBuffer(path, true).data(), content);

    TFileBuffer later(path, false);
    EXPECT_TRUE(later.isEmpty());
    EXPECT_EQ(later.fileName(), path);
    write(path, "new");
    later.read();
    EXPECT_EQ(later.data(), "new");
    QFile::remove(path);
    EXPECT_THROW(later.read(), VKError);
    EXPECT_EQ(later.data(), "new") << "a failed reading keeps what was there";
    EXPECT_TRUE(TFileBuffer().fileName().isEmpty());
}

TEST(Files, what_is_no_regular_file_is_refused_by_name) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(refusal(pipe).contains("pipe")) << "opening a pipe would wait forever";
    EXPECT_TRUE(refusal("/dev/zero").contains("regular"));
    EXPECT_TRUE(refusal(folder.path()).contains("regular"));
    EXPECT_TRUE(
        refusal(folder.filePath("<gone>")).contains("&lt;gone&gt;</b> cannot be read: it does not exist"));
    EXPECT_FALSE(refusal({}).isEmpty());
}

TEST(Files, a_file_over_the_limit_is_refused_without_reading_it_all) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("sparse");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(64LL * 1024 * 1024 * 1024));
    EXPECT_TRUE(refusal(path).contains("512 MiB"));
}
