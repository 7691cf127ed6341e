#pragma once

#include <QString>

class VKObject2Analysis;

namespace TechDB {
class ReadAhead;
}

/// A grading on trial: those of its stages that may refuse a curve, whatever the settings.
class TrialGrade {
public:
    /// Why the engine refuses the analysis's curve, in one sentence for the log; empty if it grades it.
    static QString refusal(const VKObject2Analysis& analysis, TechDB::ReadAhead& curves);
};
