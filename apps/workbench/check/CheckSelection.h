#pragma once

#include "gradereport/gradekind.h"

#include <QCoreApplication>

class CheckGrades;
class VKListViewSignal;

/// Selects in the list of a quality check as a hand would, among the analyses that it shows, in one change
/// of the selection.
class CheckSelection {
    Q_DECLARE_TR_FUNCTIONS(CheckSelection)

public:
    /// The analysis behind the last selected one, or for -1 before the first; the first or the last of all
    /// where none is selected. At the end of the list nothing changes.
    static void step(VKListViewSignal& list, int direction);

    /// All of one kind. Where there is none, the selection stays and the log says so.
    static void selectKind(VKListViewSignal& list, CheckGrades& grades, gradereport::GradeKind kind);
};
