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

    /// Other ways to write "‰ VPDB", the unit of carbon and oxygen isotopes.
    static constexpr auto vpdb =
        "‰ PDB|‰ V-PDB|‰VPDB|‰PDB|‰|permil|per mil|per mille|pour mille|permil VPDB|‰ vs VPDB|"
        "‰ vs PDB|o/oo|0/00";
};
