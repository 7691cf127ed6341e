#pragma once

#include "gradereport/exportorigin.h"

#include <QStringList>

class CheckGrades;

/// What the grades of a quality check rest on: the settings, and each analysis with the path and the digest
/// of its raw file and its quality code.
class CheckOrigin {
public:
    /// Of the analyses with these names, in their order; of one that the check doesn't know, the name alone.
    /// Without names, of all in the order of the check's list.
    static gradereport::ExportOrigin of(const CheckGrades& grades, const QStringList& names = {});
};
