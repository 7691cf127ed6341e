#pragma once

#include <QCollator>
#include <QString>

/// Names as people sort them: "a2" before "a10", without regard to case.
class NaturalOrder {
public:
    /// By the rules of the present default locale.
    static QCollator collator();

    /// A text that stands for a name where bytes are compared, as a database does: the keys of two names, in
    /// UTF-8, come in the natural order of the names. The same everywhere: marks come before digits, digits
    /// before letters, letters beyond the Latin ones by their codes; accents decide between names that are
    /// alike without them. Names that differ in case or in leading zeros alone may have one key. At most
    /// `maximumKeyLength` characters, beyond which names aren't told apart.
    static QString key(const QString& name);

    static constexpr int maximumKeyLength = 250;
};
