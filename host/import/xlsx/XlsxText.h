#pragma once

#include <QString>

class XlsxBudget;
class XlsxXml;

/// Texts of cells as the file holds them.
namespace XlsxText {

/// With each _xHHHH_ replaced by the character of that code, which XML itself can't hold. Code 0 is left.
QString unescaped(const QString& text);

/// The present element of `xml` as a text of one or several formatted runs, which are joined. Phonetic
/// readings are left out. Never null.
QString read(XlsxXml& xml, XlsxBudget& budget);

} // namespace XlsxText
