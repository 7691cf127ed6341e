#pragma once

#include <QString>

/// Names of hydrocarbons and of their isotope ratios, of which laboratories have many for one thing.
class GasNotation {
public:
    /// One form for all, of a name as `TKnownProperty::plain` gives it: "ch4" and "methane" become "c1";
    /// "d13c1", "d13cch4", "delta13cmethane" and "ch4d13c" become "d13cc1". Other names stay.
    static QString canonical(const QString& plain);
};
