#pragma once

#include "TKnownProperty.h"

/// A known property as a line of a table: texts in UTF-8, lists separated by bars.
struct PropertyRow {
    const char* key;
    const char* label;
    const char* english;
    const char* french;
    const char* unit;
    const char* unitAliases;
    /// In the form of TKnownProperty::plain.
    const char* aliases;

    TKnownProperty property(TKnownProperty::Family family) const;
};
