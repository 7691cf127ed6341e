#include "XlsSamples.h"

#include "VKError.h"
#include "XlsReader.h"

#include <QFile>

#include <gtest/gtest.h>

namespace XlsSamples {

QByteArray bytesOf(const QString& name) {
    QFile file(QStringLiteral(IMPORT_DATA "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QByteArray exchanged(const QByteArray& bytes, const QByteArray& before, const QByteArray& after) {
    EXPECT_EQ(bytes.count(before), 1) << before.toHex().toStdString();
    EXPECT_EQ(before.size(), after.size());
    return QByteArray(bytes).replace(before, after);
}

int sectorNamedAt(const QByteArray& bytes, int at) {
    return 512 * static_cast<int>(1 + qFromLittleEndian<quint32>(bytes.constData() + at));
}

QByteArray renamed(const QByteArray& bytes, const QString& name) {
    const QByteArray before("W\0o\0r\0k\0b\0o\0o\0k\0", 16);
    QByteArray entry(reinterpret_cast<const char*>(name.utf16()), 2 * name.size());
    const auto length = static_cast<quint16>(entry.size() + 2);
    entry.append(64 - entry.size(), '\0');
    const int at = bytes.indexOf(before);
    EXPECT_GT(at, 0);
    return patched<quint16>(QByteArray(bytes).replace(at, 64, entry), at + 64, length);
}

std::string refusal(const QByteArray& bytes, const Workbook::Limits& limits) {
    try {
        XlsReader::read(bytes, QStringLiteral("lab & co.xls"), limits);
    } catch (const VKError& error) {
        EXPECT_TRUE(error.message().contains(QStringLiteral("<b>lab &amp; co.xls</b>")));
        EXPECT_FALSE(error.advice().isEmpty());
        return error.text().toStdString();
    }
    return {};
}

} // namespace XlsSamples
