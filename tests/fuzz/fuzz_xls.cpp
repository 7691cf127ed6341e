#include "CompoundFile.h"
#include "XlsReader.h"
#include "checkedbook.h"

#include <QtEndian>

namespace {

constexpr int sectorSize = 512;

template <class Number>
void put(QByteArray& bytes, int at, Number number) {
    qToLittleEndian<Number>(number, bytes.data() + at);
}

void putEntry(QByteArray& directory, int index, const QString& name, char type, quint32 start, int size) {
    const int at = 128 * index;
    directory.replace(at, 2 * name.size(), reinterpret_cast<const char*>(name.utf16()), 2 * name.size());
    put(directory, at + 64, static_cast<quint16>(2 * name.size() + 2));
    directory[at + 66] = type;
    put(directory, at + 68, 0xFFFFFFFFU);
    put(directory, at + 72, 0xFFFFFFFFU);
    put(directory, at + 76, type == 5 ? 1U : 0xFFFFFFFFU);
    put(directory, at + 116, start);
    put(directory, at + 120, static_cast<quint32>(size));
}

// So that changes of records reach the readers of records: the container of bytes that are none. First comes
// the table of sectors, then the directory, then the stream.
QByteArray contained(const QByteArray& stream) {
    const int sectors = (stream.size() + sectorSize - 1) / sectorSize;
    QByteArray header(sectorSize, '\xFF');
    header.replace(0, 8, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    put<quint16>(header, 28, 0xFFFE);
    put<quint16>(header, 30, 9);
    put<quint16>(header, 32, 6);
    put<quint32>(header, 48, 1);
    put<quint32>(header, 56, 0); // no stream is a small one
    put<quint32>(header, 76, 0);
    QByteArray table(sectorSize, '\xFF');
    put(table, 4, 0xFFFFFFFEU);
    for (int i = 0; i < sectors; ++i)
        put(table, 8 + 4 * i, i + 1 < sectors ? static_cast<quint32>(i + 3) : 0xFFFFFFFEU);
    QByteArray directory(sectorSize, '\0');
    putEntry(directory, 0, QStringLiteral("Root Entry"), 5, 0xFFFFFFFEU, 0);
    putEntry(directory, 1, QStringLiteral("Workbook"), 2, 2, stream.size());
    return header + table + directory + stream;
}

} // namespace

// Whatever the bytes are, a book as promised comes out or a VKError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 60'000)
        return 0;
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (!CompoundFile::hasSignature(bytes))
        bytes = contained(bytes);
    Workbook::Limits limits;
    limits.unpackedBytes = 64LL * 1024 * 1024;
    requireBookOrError([&] { return XlsReader::read(bytes, QStringLiteral("fuzz.xls"), limits); });
    return 0;
}
