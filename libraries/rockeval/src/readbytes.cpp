#include "rockeval/readbytes.h"

#include "rockeval/readerror.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <system_error>

namespace rockeval {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const fs::path& path, const std::string& problem) {
    throw ReadError(path.string(), 0, problem);
}

[[noreturn]] void refuseSize(const fs::path& path, std::size_t limit) {
    refuse(path, "the file is larger than " + std::to_string(limit) +
                     " bytes and so is no raw Rock-Eval file; choose a .S00 or .R00 file");
}

void requireRegularFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    switch (status.type()) {
    case fs::file_type::regular:
        return;
    case fs::file_type::not_found:
        refuse(path, "there is no such file; check the path");
    case fs::file_type::directory:
        refuse(path, "this is a folder; name a file in it");
    case fs::file_type::none:
        refuse(path,
               "the file can't be looked at (" + error.message() + "); check the path and its permissions");
    default:
        refuse(path, "this is a pipe or a device, not a file; copy its data into a file first");
    }
}

std::size_t announcedSize(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error)
        refuse(path, "the size of the file can't be read (" + error.message() + "); check its permissions");
    // Beyond any limit either way where size_t is narrower.
    return static_cast<std::size_t>(std::min<std::uintmax_t>(size, SIZE_MAX));
}

} // namespace

std::string readBytes(const fs::path& path, std::size_t limit) {
    requireRegularFile(path);
    const std::size_t announced = announcedSize(path);
    if (announced > limit)
        refuseSize(path, limit);

    std::ifstream file(path, std::ios::binary);
    if (!file)
        refuse(path, "the file can't be opened; check its permissions");

    // One byte more than announced: the end is seen in the first read unless the file grows.
    std::string bytes(announced + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        file.read(bytes.data() + filled, static_cast<std::streamsize>(bytes.size() - filled));
        filled += static_cast<std::size_t>(file.gcount());
        if (file.bad())
            refuse(path, "the file can't be read to its end; check the drive and copy the file again");
        if (filled > limit)
            refuseSize(path, limit);
        if (file.eof())
            break;
        bytes.resize(std::min(bytes.size() * 2 + 4096, limit + 1));
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace rockeval
