#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QString>

/// A regular file, opened for reading.
///
/// What is none (a folder, a pipe, a device) is not even opened: opening a pipe would wait for a writer, and
/// reading a device would not end.
class RegularFile {
    Q_DECLARE_TR_FUNCTIONS(RegularFile)

public:
    explicit RegularFile(const QString& path);

    /// Why the file can't be read and what to do, half a sentence in rich text; empty as long as it can.
    const QString& refusal() const { return m_refusal; }

    /// Up to `size` next bytes. Empty at the end, and when reading fails, which `refusal` then tells.
    QByteArray read(qint64 size);

private:
    QFile m_file;
    QString m_refusal;
};
