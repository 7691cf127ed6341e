#pragma once

#include <QCoreApplication>

class CheckGrades;

/// Why an analysis of a quality check has its grade.
class CheckReasons {
    Q_DECLARE_TR_FUNCTIONS(CheckReasons)

public:
    /// The batch grader's sentence, in the language of the application; empty for an analysis that the
    /// check doesn't list, or whose curve can't be read any more.
    static QString reason(const CheckGrades& grades, const QString& name);
};
