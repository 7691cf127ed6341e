#pragma once

#include "Workbook.h"
#include "XlsxErrors.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>

struct zip;
class ZipPart;

/// The files packed into a zip archive, under names without regard to case, as workbooks name them. Nothing
/// is unpacked before it is asked for, and no more than the limits allow over the archive's life.
class ZipArchive {
public:
    /// Throws VKError for what is no whole archive. `bytes` and `errors` outlive this object.
    ZipArchive(const QByteArray& bytes, const XlsxErrors& errors, const Workbook::Limits& limits);
    ~ZipArchive();
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;

    bool has(const QString& name) const;

    /// At its beginning. Throws VKError for a file that is missing, encrypted, damaged or too large. The
    /// archive outlives it.
    std::unique_ptr<ZipPart> part(const QString& name);

private:
    struct Closer {
        void operator()(zip* archive) const;
    };

    void checkSize(const QString& name, quint64 size, quint64 packed);

    const XlsxErrors& m_errors;
    qint64 m_mayUnpack;
    qint64 m_unpacked = 0;
    std::unique_ptr<zip, Closer> m_archive;
    QHash<QString, quint64> m_indexes;
};
