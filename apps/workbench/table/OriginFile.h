#pragma once

#include "gradereport/exportorigin.h"

#include <QCoreApplication>
#include <QString>

struct AnalysisOrigin;

/// What an export rests on, in a file of its own beside it, since most forms have no room for it.
class OriginFile {
    Q_DECLARE_TR_FUNCTIONS(OriginFile)

public:
    /// Writes it beside the exported file (`gradereport::originPath`) with this program's version, and tells
    /// on the log where. Throws VKError.
    static void writeBeside(const QString& exported, gradereport::ExportOrigin origin);

    /// One input of a name; null where nothing is known of its file.
    static gradereport::OriginInput input(const QString& name, const AnalysisOrigin* origin);
};
