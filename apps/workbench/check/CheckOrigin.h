#pragma once

#include <QByteArray>
#include <QCoreApplication>

class CheckGrades;

/// What the grades of a quality check rest on: the version, the settings, and each analysis with the path and
/// the digest of its raw file and its quality code. A JSON object in a file of its own, beside an export
/// whose form has no room for it.
class CheckOrigin {
    Q_DECLARE_TR_FUNCTIONS(CheckOrigin)

public:
    static QByteArray json(const CheckGrades& grades);

    /// Writes it beside the exported file ("table.csv", "table.origin.json") and tells on the log where.
    /// Throws VKError.
    static void writeBeside(const QString& exported, const CheckGrades& grades);
};
