#include "core/signal1disosampling.h"
#include "promises.h"
#include "sourcerockqaqc/grading.h"

#include <exception>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Values = std::vector<double>;
using Signal = algo::core::Signal1D<double, Values>;
using IsoSignal = algo::core::Signal1DIsoSampling<double, Values>;

// Any failure of the engine is an answer; only what is no exception ends the run.
template <class Action>
void attempt(const Action& action) {
    try {
        action();
    } catch (const std::exception&) {
    }
}

void use(const std::shared_ptr<const Signal>& signal) {
    for (const double x : {-1.0, 0.0, 0.5, 7.5, 1e6, 0.5})
        attempt([&] { signal->evaluate(x); });
    attempt([&] { signal->extract(0.5, 7.5); });
    if (signal->size() <= 600) // smoothing takes time in the square of the length
        attempt([&] { algo::sr_qaqc::grade<double, Values>(signal, {}); });
}

// Reads `text`, uses what came out, and reads again what that writes.
template <class Kind>
void readAndUse(const std::shared_ptr<Kind>& signal, const std::shared_ptr<Kind>& again,
                const std::string& text, const std::string& lineBefore, std::size_t leastBytesPerPoint) {
    std::istringstream stream(text);
    signal->read(stream);
    require(!stream.fail() || signal->size() == 0);
    require(signal->size() <= text.size() / leastBytesPerPoint + 1);
    require(signal->xValues().size() == signal->size() && signal->yValues().size() == signal->size());
    use(signal);
    if (stream.fail() || signal->size() == 0)
        return;
    std::stringstream written;
    written << lineBefore;
    signal->write(written);
    again->read(written);
    require(!written.fail() && again->size() == signal->size() && again->fullName() == signal->fullName());
}

} // namespace

// Both text forms of a signal: whatever the bytes are, either nothing is read and the stream says so, or
// a signal comes out that can be evaluated, cut, written and graded.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 65536)
        return 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    readAndUse(std::make_shared<Signal>(0), std::make_shared<Signal>(0), text, "", 4);
    const auto even = [] { return std::make_shared<IsoSignal>(0, 1, 0, nullptr); };
    readAndUse(even(), even(), text, "\n", 2);
    return 0;
}
