#include "promises.h"
#include "rockeval/channels.h"
#include "rockeval/readerror.h"
#include "rockeval/signalreader.h"

// Whatever the bytes are, a curve comes out as promised or a ReadError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const rockeval::RawSignal signal =
            rockeval::readSignal({reinterpret_cast<const char*>(data), size}, "fuzz.S00");
        const rockeval::Channels channels = rockeval::toChannels(signal.curve);
        require(!channels.time.empty() && channels.time.size() == channels.fid.size());
        require(channels.time.size() <= size / 4 && signal.warnings.size() <= 101);
        for (std::size_t i = 1; i < channels.time.size(); ++i)
            require(channels.time[i - 1] < channels.time[i]);
        for (const rockeval::Warning& warning : signal.warnings)
            for (const char c : warning.text)
                require(c >= ' ' && c <= '~');
    } catch (const rockeval::ReadError& error) {
        require(error.line() > 0);
    }
    return 0;
}
