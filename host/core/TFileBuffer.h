#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// The content of a file together with the file's path.
///
/// A file is read whole or not at all. What is no regular file (a folder, a pipe, a device) and what is
/// larger than `maxSize` is refused, so that reading ends.
class TFileBuffer {
    Q_DECLARE_TR_FUNCTIONS(TFileBuffer)

public:
    static constexpr qint64 maxSize = 512LL * 1024 * 1024;

    /// No file and no content.
    TFileBuffer() = default;

    /// The file at `path`. Reads it at once if `readNow` is true, with `read`'s failures.
    TFileBuffer(const QString& path, bool readNow);

    /// Reads the file in the place of the present content, which stays if that fails. Throws a VKError that
    /// names the file and the cause.
    void read();

    const QString& fileName() const { return m_fileName; }
    const QByteArray& data() const { return m_data; }
    bool isEmpty() const { return m_data.isEmpty(); }

private:
    QString m_fileName;
    QByteArray m_data;
};
