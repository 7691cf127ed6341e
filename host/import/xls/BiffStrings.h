#pragma once

#include "BiffCursor.h"

#include <QString>

#include <vector>

class XlsBudget;

/// Texts as the workbook keeps them: the number of characters, a byte that says whether each takes one or
/// two bytes and whether formatted runs and phonetic hints follow, which are skipped. Where a text goes on in
/// a CONTINUE record, that byte is stated again. Texts are never null. Faults are thrown as XlsRefusal.
namespace BiffStrings {

/// The number of characters takes one byte.
QString shortText(BiffCursor& content);

/// The number of characters takes two bytes.
QString text(BiffCursor& content);

/// All of the content of an SST record.
std::vector<QString> sharedTexts(BiffCursor& content, XlsBudget& budget);

} // namespace BiffStrings
