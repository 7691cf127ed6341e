#include "gradereport/naturalorder.h"

#include <algorithm>
#include <cstddef>

namespace gradereport {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

unsigned char folded(char c) {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

/// Takes the run of digits at the front of `text` off and returns it without its leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

int compareNumbers(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return a.size() < b.size() ? -1 : 1;
    }
    return a.compare(b);
}

int compareNaturally(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const int order = compareNumbers(takeNumber(a), takeNumber(b));
            if (order != 0) {
                return order;
            }
            continue;
        }
        if (folded(a.front()) != folded(b.front())) {
            return folded(a.front()) < folded(b.front()) ? -1 : 1;
        }
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

} // namespace

bool naturallyLess(std::string_view a, std::string_view b) {
    const int order = compareNaturally(a, b);
    return order != 0 ? order < 0 : a < b;
}

} // namespace gradereport
