#pragma once

#include <QString>

/// Names of stored objects as they are shown and looked for.
class NameText {
public:
    /// With a blank for each line break and other control character, which another program may have put in.
    static QString onOneLine(QString name);

    /// The same for two names that differ in case only. A name holds a text, in either case, if its folded
    /// form holds that of the text.
    static QString folded(const QString& name);
};
