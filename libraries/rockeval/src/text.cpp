#include "text.h"

#include "encoding.h"

#include <algorithm>

namespace rockeval {

namespace {

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    return result;
}

std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 24;
    std::string result = "\"";
    for (const char c : text.substr(0, longest))
        result += c >= ' ' && c <= '~' ? c : '?';
    result += text.size() > longest ? "...\"" : "\"";
    return result;
}

std::optional<SectionHeader> sectionHeader(std::string_view line) {
    if (startsWithMark(line))
        line.remove_prefix(byteOrderMark.size());
    while (!line.empty() && isBlank(line.front()))
        line.remove_prefix(1);
    if (line.empty() || line.front() != '[')
        return std::nullopt;
    const std::size_t end = line.find(']');
    if (end == std::string_view::npos)
        return SectionHeader{trim(line.substr(1)), false};
    return SectionHeader{trim(line.substr(1, end - 1)), true};
}

} // namespace rockeval
