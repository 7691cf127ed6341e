#pragma once

#include "log/nodekinds.h"

#include <sstream>
#include <stdexcept>
#include <string>

namespace algo::core {

/// The engine's one family of failures, used as `Exception<std::runtime_error>`.
///
/// `what()` gives the whole composed text: "Error in ", the raising function's signature, the source
/// file in brackets, and the message on a line of its own. The engine catches none of its own.
template <class Base>
class Exception : public Base {
public:
    /// With a log node, the text is also added there as an error, unless its processor refuses.
    explicit Exception(const std::string& text, log::Node* logNode = nullptr) : Base(text), node(logNode) {
        if (node != nullptr) {
            std::stringstream stream;
            stream << text;
            node->add<log::NodeError>(stream, node->processor);
        }
    }

    log::Node* node; ///< the log node that was told, or null; not owned
};

/// The message of a failure's text, without the place where it was raised.
inline std::string messageOf(const std::string& text) {
    return text.substr(text.rfind('\n') + 1);
}

/// Composes the text of a failure and raises it. Kept out of line, and the message is made here, so
/// that an accessor with a check stays small enough to be inlined.
template <class MakeMessage>
[[noreturn, gnu::noinline, gnu::cold]] void raise(const char* signature, const char* file,
                                                  const MakeMessage& makeMessage) {
    throw Exception<std::runtime_error>(std::string("Error in ") + signature + " ( file " + file + ") :\n" +
                                        makeMessage());
}

} // namespace algo::core

/// Raises a failure at this place. A macro, since the signature and the file belong to the raising site.
#define ALGO_RAISE(message)                                                                                  \
    ::algo::core::raise(__PRETTY_FUNCTION__, __FILE__, [&] { return std::string(message); })
