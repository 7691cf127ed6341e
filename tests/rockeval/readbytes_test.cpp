#include "readertest.h"
#include "temporaryfolder.h"

#include "rockeval/readbytes.h"
#include "rockeval/resultreader.h"
#include "rockeval/signalreader.h"

#include <sys/stat.h>

namespace {

using rockeval::readBytes;

void expectRefused(const std::string& path, const std::string& part,
                   std::size_t limit = rockeval::maxFileBytes) {
    expectRefusal([&] { return readBytes(path, limit); }, path, part);
}

} // namespace

TEST(ReadBytes, gives_the_bytes_unchanged) {
    using namespace std::string_literals;
    const TemporaryFolder folder;
    for (const std::string& bytes : {""s, "\0\r\n\xFF\x1A\r"s, std::string(100000, 'a') + "\n"})
        EXPECT_EQ(readBytes(folder.write("a", bytes)), bytes);
    EXPECT_EQ(readBytes(folder.write("b", "12345"), 5), "12345");
}

TEST(ReadBytes, refuses_what_is_no_file_to_read) {
    const TemporaryFolder folder;
    expectRefused(folder.path(), "folder");
    expectRefused(folder.path("absent.S00"), "no such file");
    expectRefused(folder.path(std::string(5000, 'x')), "can't be looked at");
    expectRefused("/dev/zero", "device");
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectRefused(pipe, "pipe"); // opening it would wait for a writer forever
}

TEST(ReadBytes, refuses_a_file_over_the_limit_before_and_while_reading) {
    const TemporaryFolder folder;
    const std::string large = folder.write("large.S00", "");
    std::filesystem::resize_file(large, rockeval::maxFileBytes + 1);
    expectRefused(large, "larger than 268435456 bytes");
    expectRefused(folder.write("small", "123456"), "larger than 5 bytes", 5);
    // The kernel announces no size for this file, so only the reading itself can tell.
    ASSERT_EQ(std::filesystem::file_size("/proc/self/status"), 0U);
    expectRefused("/proc/self/status", "larger than 100 bytes", 100);
    EXPECT_GT(readBytes("/proc/self/status").size(), 100U);
}

TEST(ReadBytes, readers_of_files_name_the_file_and_the_line) {
    const TemporaryFolder folder;
    const std::string signal = folder.write("a.S00", "[Curves pyro]\n3\t1\t4\n");
    EXPECT_EQ(rockeval::readSignalFile(signal).curve.fid.front(), 4.0);
    EXPECT_EQ(rockeval::readResultsFile(folder.write("a.R00", "[P]\nk=4\n")).number("P", "k"), 4.0);
    const std::string junk = folder.write("junk.S00", "\n\njunk");
    expectRefusal([&] { return rockeval::readSignalFile(junk); }, junk + ", line 3", "");
}
