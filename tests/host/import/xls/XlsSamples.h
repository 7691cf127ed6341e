#pragma once

#include "Workbook.h"

#include <QByteArray>
#include <QtEndian>

#include <string>

/// The workbooks of ../data and means to spoil them.
namespace XlsSamples {

/// Fails the test if there is no such file.
QByteArray bytesOf(const QString& name);

/// A copy with one place, found by what stands there, exchanged for bytes of equal number. Fails the test
/// if it is not there exactly once.
QByteArray exchanged(const QByteArray& bytes, const QByteArray& before, const QByteArray& after);

/// A copy with a number written at a place.
template <class Number>
QByteArray patched(QByteArray bytes, int at, Number number) {
    qToLittleEndian<Number>(number, bytes.data() + at);
    return bytes;
}

/// Where a sector of a file with sectors of 512 bytes starts whose number stands in the header at `at`.
int sectorNamedAt(const QByteArray& bytes, int at);

/// A copy in which the stream Workbook has another name.
QByteArray renamed(const QByteArray& bytes, const QString& name);

/// What the user is told when the file is refused; empty if it is read.
std::string refusal(const QByteArray& bytes, const Workbook::Limits& limits = {});

} // namespace XlsSamples
