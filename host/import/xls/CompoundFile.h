#pragma once

#include "SectorChains.h"

#include <QHash>
#include <QString>

#include <vector>

/// A compound file: a small file system within a file, in which .xls workbooks (and documents of many other
/// programs) are kept. Gives the streams of its root folder; those of folders within it, such as workbooks
/// embedded in the workbook, are others' business. Faults of the file are thrown as XlsRefusal.
class CompoundFile {
public:
    static bool hasSignature(const QByteArray& bytes);

    /// Needs the signature.
    explicit CompoundFile(const QByteArray& bytes);

    /// Whatever the case of the letters.
    bool contains(const QString& name) const { return m_streams.contains(name.toLower()); }

    /// Empty if there is none of this name.
    QByteArray stream(const QString& name) const;

private:
    struct Stream {
        quint32 start = 0;
        qint64 size = 0;
    };

    void readSectors(const QByteArray& bytes);
    std::vector<quint32> tableSectors(const QByteArray& bytes) const;
    void readFolder(const QByteArray& directory);
    qint64 sizeOf(const QByteArray& entry) const;

    SectorChains m_sectors;
    SectorChains m_smallSectors;
    qint64 m_leastBigStream = 0; ///< smaller streams are kept in small sectors
    bool m_wideSizes = false;
    QHash<QString, Stream> m_streams; ///< by name in lower case
};
