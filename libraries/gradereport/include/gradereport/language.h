#pragma once

#include <string>

namespace gradereport {

/// The language of sentences. Words that programs read, such as the grades of a CSV file, are English in any.
enum class Language { english, french };

/// The one of two texts that is in the language.
[[nodiscard]] inline std::string said(Language language, const char* english, const char* french) {
    return language == Language::french ? french : english;
}

} // namespace gradereport
