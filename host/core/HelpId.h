#pragma once

/// The pages of the user guide that have a number, for `HelpInterface` and `ApplicationInterface::showHelp`.
/// The import modules and the quality check answer theirs as plain numbers.
namespace HelpId {

constexpr int start = 0;
constexpr int projects = 1;
constexpr int tree = 2;
constexpr int wizard = 3;
constexpr int curves = 4;
constexpr int tables = 5;
constexpr int messages = 6;
constexpr int importModules = 120;
constexpr int qualityCheck = 124;

} // namespace HelpId
