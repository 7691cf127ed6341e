#pragma once

#include <memory>

class VKDataModelGeneric;

namespace rockeval {
struct ResultTable;
}

/// The content of a .R00 file as a table for a project.
///
/// One row for each line of the file, in its order, with the columns "Section", "Key" and "Value": keys
/// recur between sections, and so all of them, and repeated ones, are kept. The row's header is
/// "[Section] Key", by which a value can be asked for across datasets. A line without a key has an empty
/// cell there, a section without lines a row of its own.
///
/// A value is a number (double) if it is one and nothing else, with a decimal point or comma, else text.
/// What a number would not give back stays text: a number with zeros before it, as labels have them ("007"),
/// and a whole one of more than 15 digits. An empty value is an empty cell.
namespace RockEvalResults {

/// Never null; without rows for a file without lines.
std::unique_ptr<VKDataModelGeneric> model(const rockeval::ResultTable& table);

} // namespace RockEvalResults
