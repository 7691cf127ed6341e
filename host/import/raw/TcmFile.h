#pragma once

#include "TAnalysisData.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// A file (.tcm) that keeps one imported curve until it is in a project.
///
/// All numbers have their lowest byte first: 8 bytes "TavrelCM"; the version of the format, 1; the length
/// in bytes of the analysis type and that text in UTF-8; the number of channels, 2; the number of points; the
/// abscissae, then the ordinates, 4-byte IEEE 754 numbers; and the SHA-256 digest of all before it. Version,
/// length and numbers take 4 bytes each. Nothing follows.
class TcmFile {
    Q_DECLARE_TR_FUNCTIONS(TcmFile)

public:
    TcmFile(const QString& analysisType, TAnalysisData curve);

    /// Reads a file. Throws a VKError that names it and says why if it can't be read, is no such file, was
    /// altered or cut off, is of a newer version, or holds a curve that isn't usable.
    static TcmFile read(const QString& path);

    /// The content of a file's bytes; `path` serves the messages only. Throws as `read` does.
    static TcmFile decoded(const QByteArray& bytes, const QString& path);

    /// The bytes of a file. The curve must have points.
    QByteArray encoded() const;

    /// Writes a file, whole or not at all, in the place of one that may lie there. Throws a VKError that
    /// names the file and the cause.
    void write(const QString& path) const;

    /// What the analysis was measured for.
    const QString& analysisType() const { return m_analysisType; }
    const TAnalysisData& curve() const { return m_curve; }

private:
    QString m_analysisType;
    TAnalysisData m_curve;
};
