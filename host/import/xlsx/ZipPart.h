#pragma once

#include <QIODevice>
#include <QString>

#include <memory>

struct zip_file;

/// One file inside an archive, unpacked while it is read. Reading ends early, with `failure`, where the
/// content is damaged, is longer than it claims, or holds a piece of XML too long to be one of a workbook.
class ZipPart : public QIODevice {
public:
    /// Between two calls of `endPiece`, in bytes: room for the longest text of a cell, escaped.
    static constexpr qint64 longestPiece = 512LL * 1024;

    /// Takes over `file`; `size` is how long it claims to be.
    ZipPart(zip_file* file, const QString& name, qint64 size);
    ~ZipPart() override;

    const QString& name() const { return m_name; }
    /// Why reading ended early; empty if it did not.
    const QString& failure() const { return m_failure; }

    /// Says that what was read so far has been understood.
    void endPiece() { m_piece = 0; }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    struct Closer {
        void operator()(zip_file* file) const;
    };

    qint64 fail(const QString& cause);

    std::unique_ptr<zip_file, Closer> m_file;
    QString m_name;
    QString m_failure;
    qint64 m_left;
    qint64 m_piece = 0;
};
