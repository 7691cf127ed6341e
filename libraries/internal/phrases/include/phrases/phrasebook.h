#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace phrases {

/// A sentence in both languages. A star stands for what is known only when it is said; both texts have the
/// same ones in the same order.
struct Phrase {
    std::string_view english;
    std::string_view french;
};

/// The fixed parts of a text with stars: one more than there are stars.
inline std::vector<std::string_view> fixedParts(std::string_view text) {
    std::vector<std::string_view> found;
    for (std::size_t star = text.find('*'); star != std::string_view::npos; star = text.find('*')) {
        found.push_back(text.substr(0, star));
        text.remove_prefix(star + 1);
    }
    found.push_back(text);
    return found;
}

/// What stands in the places of the stars, if the text is of that form.
inline std::optional<std::vector<std::string_view>> fillings(std::string_view text, std::string_view form) {
    const std::vector<std::string_view> fixed = fixedParts(form);
    if (text.substr(0, fixed.front().size()) != fixed.front())
        return std::nullopt;
    text.remove_prefix(fixed.front().size());
    std::vector<std::string_view> found;
    for (std::size_t i = 1; i < fixed.size(); ++i) {
        const bool last = i + 1 == fixed.size();
        const std::size_t at = last && fixed[i].empty() ? text.size()
                               : last                   ? text.rfind(fixed[i])
                                                        : text.find(fixed[i]);
        if (at == std::string_view::npos)
            return std::nullopt;
        found.push_back(text.substr(0, at));
        text.remove_prefix(at + fixed[i].size());
    }
    return text.empty() ? std::optional(found) : std::nullopt;
}

inline std::string filled(std::string_view form, const std::vector<std::string_view>& fillings) {
    const std::vector<std::string_view> fixed = fixedParts(form);
    std::string text(fixed.front());
    for (std::size_t i = 0; i < fillings.size(); ++i)
        text.append(fillings[i]).append(fixed[i + 1]);
    return text;
}

/// The French of an English text that is one of the phrases; another one comes back unchanged.
template <std::size_t Count>
std::string inFrench(std::string_view text, const std::array<Phrase, Count>& phrases) {
    for (const Phrase& phrase : phrases) {
        if (const auto found = fillings(text, phrase.english))
            return filled(phrase.french, *found);
    }
    return std::string(text);
}

} // namespace phrases
