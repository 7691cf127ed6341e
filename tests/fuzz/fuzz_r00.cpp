#include "promises.h"
#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"

namespace {

bool isUtf8(const std::string& text) {
    // Decoding what is UTF-8 already changes nothing: the reader itself is the judge of a value read again.
    const std::string again = "[s]\nk=" + text;
    const rockeval::ResultTable table = rockeval::readResults(again, "again.R00");
    const std::string* const value = table.find("s", "k");
    return value != nullptr && *value == text;
}

} // namespace

// Whatever the bytes are, a table comes out whose every entry can be looked up, or a ReadError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const rockeval::ResultTable table =
            rockeval::readResults({reinterpret_cast<const char*>(data), size}, "fuzz.R00");
        require(!table.sections.empty() && table.warnings.size() <= 101);
        std::size_t lookUps = 0;
        for (const rockeval::ResultSection& section : table.sections) {
            for (const rockeval::ResultEntry& entry : section.entries) {
                if (++lookUps > 100)
                    return 0;
                require(table.find(section.name, entry.key) != nullptr);
                table.number(section.name, entry.key);
                require(isUtf8(entry.value));
            }
        }
    } catch (const rockeval::ReadError& error) {
        require(error.line() > 0);
    }
    return 0;
}
