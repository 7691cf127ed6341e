#pragma once

namespace gradereport {

/// The tongue of a sentence. Files are written in English, so that they are the same on every desk.
enum class Language { english, french };

} // namespace gradereport
