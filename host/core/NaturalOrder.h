#pragma once

#include <QCollator>

/// Names as people sort them: "a2" before "a10", without regard to case.
class NaturalOrder {
public:
    /// By the rules of the present default locale.
    static QCollator collator();
};
