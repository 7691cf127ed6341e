#pragma once

#include <QString>

class VKObject2Analysis;

/// A grading on trial, with the settings that every quality check starts with.
class TrialGrade {
public:
    /// Why the engine refuses the analysis's curve, in one sentence for the log; empty if it grades it.
    static QString refusal(const VKObject2Analysis& analysis);
};
