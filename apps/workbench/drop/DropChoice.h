#pragma once

#include <QStringList>

/// What is to become of some of the files that were dropped.
struct DropChoice {
    enum class Target { LeaveOut, SourceRock, Gas, Custom, Open };

    Target target = Target::LeaveOut;
    QStringList paths;
};
