#include "TcmFile.h"
#include "VKError.h"
#include "promises.h"

#include <QCryptographicHash>

namespace {

void decode(const QByteArray& bytes) {
    try {
        const TcmFile file = TcmFile::decoded(bytes, "fuzz.tcm");
        const TcmFile again = TcmFile::decoded(file.encoded(), "again.tcm");
        require(8 * file.curve().dataSize() < bytes.size() && file.curve().whyUnusable().isEmpty() &&
                again.curve().equals(file.curve()));
    } catch (const VKError&) {
        return; // refused
    }
}

} // namespace

// Whatever the bytes are, a usable curve comes out or a VKError. With their digest too, for no chance finds
// one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    decode(bytes);
    decode(bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
    return 0;
}
