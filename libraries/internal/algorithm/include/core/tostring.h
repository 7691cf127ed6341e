#pragma once

#include <sstream>
#include <string>

namespace algo::core {

/// Number to text for messages and for values set by name.
///
/// The stream keeps its defaults, so a double has six significant digits and an unsigned integer
/// its plain decimal digits.
template <class Value>
std::string toString(const Value& value) {
    std::stringstream stream;
    stream << value;
    return stream.str();
}

} // namespace algo::core
