#include "rockeval/readbytes.h"
#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"
#include "rockeval/signalreader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using rockeval::readBytes;

/// A folder of its own for each test, removed with what is in it.
class ReadBytes : public testing::Test {
protected:
    ReadBytes()
        : m_folder(fs::temp_directory_path() /
                   ("rockeval-" + std::to_string(getpid()) + "-" +
                    testing::UnitTest::GetInstance()->current_test_info()->name())) {
        fs::create_directory(m_folder);
    }
    ~ReadBytes() override { fs::remove_all(m_folder); }

    fs::path write(const std::string& name, const std::string& bytes) const {
        std::ofstream(m_folder / name, std::ios::binary) << bytes;
        return m_folder / name;
    }

    static void expectRefusal(const fs::path& path, const std::string& part,
                              std::size_t limit = rockeval::maxFileBytes) {
        try {
            readBytes(path, limit);
            FAIL() << path << " is not refused";
        } catch (const rockeval::ReadError& error) {
            const std::string what = error.what();
            EXPECT_EQ(what.rfind(path.string() + ": ", 0), 0U) << what;
            EXPECT_NE(what.find(part), std::string::npos) << what;
            EXPECT_EQ(error.line(), 0U);
        }
    }

    fs::path m_folder;
};

} // namespace

TEST_F(ReadBytes, gives_the_bytes_unchanged) {
    using namespace std::string_literals;
    for (const std::string& bytes : {""s, "\0\r\n\xFF\x1A\r"s, std::string(100000, 'a') + "\n"})
        EXPECT_EQ(readBytes(write("a", bytes)), bytes);
    EXPECT_EQ(readBytes(write("b", "12345"), 5), "12345");
}

TEST_F(ReadBytes, refuses_what_is_no_file_to_read) {
    expectRefusal(m_folder, "folder");
    expectRefusal(m_folder / "absent.S00", "no such file");
    expectRefusal(m_folder / std::string(5000, 'x'), "can't be looked at");
    expectRefusal("/dev/zero", "device");
    const fs::path pipe = m_folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectRefusal(pipe, "pipe"); // opening it would wait for a writer forever
}

TEST_F(ReadBytes, refuses_a_file_over_the_limit_before_and_while_reading) {
    const fs::path large = write("large.S00", "");
    fs::resize_file(large, rockeval::maxFileBytes + 1);
    expectRefusal(large, "larger than 268435456 bytes");
    expectRefusal(write("small", "123456"), "larger than 5 bytes", 5);
    // The kernel announces no size for this file, so only the reading itself can tell.
    ASSERT_EQ(fs::file_size("/proc/self/status"), 0U);
    expectRefusal("/proc/self/status", "larger than 100 bytes", 100);
    EXPECT_GT(readBytes("/proc/self/status").size(), 100U);
}

TEST_F(ReadBytes, readers_of_files_name_the_file_and_the_line) {
    EXPECT_EQ(rockeval::readSignalFile(write("a.S00", "[Curves pyro]\n3\t1\t4\n")).curve.fid.front(), 4.0);
    EXPECT_EQ(rockeval::readResultsFile(write("a.R00", "[P]\nk=4\n")).number("P", "k"), 4.0);
    const fs::path junk = write("junk.S00", "\n\njunk");
    try {
        rockeval::readSignalFile(junk);
        FAIL() << "not refused";
    } catch (const rockeval::ReadError& error) {
        EXPECT_EQ(error.fileName(), junk.string());
        EXPECT_EQ(error.line(), 3U);
    }
}
