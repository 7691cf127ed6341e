#pragma once

#include "ImportOutcome.h"

#include <QCoreApplication>
#include <QVector>

#include <memory>

class VKDataModel;

/// What became of the files of an import, as a table for the workspace, where it is sorted, copied and
/// written as CSV like any other: a row a file, what failed first, then what was skipped.
class OutcomeTable {
    Q_DECLARE_TR_FUNCTIONS(OutcomeTable)

public:
    static std::unique_ptr<VKDataModel> of(const QVector<ImportOutcome>& outcomes);

    /// "12 imported, 2 skipped, 1 failed".
    static QString summary(const QVector<ImportOutcome>& outcomes);
};
