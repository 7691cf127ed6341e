#pragma once

#include <QByteArray>
#include <QString>

/// What raw files are to be known by.
namespace RawFileKind {

/// A curve (.S00), a table of results (.R00), or neither.
enum class Kind { Other, Signal, Results };

/// By the extension, .S00 or .R00 in either case.
Kind ofName(const QString& name);

/// How many bytes of a file are looked at.
constexpr int headSize = 64 * 1024;

/// Whether the first bytes are those of a raw file: text of 8 bits, in which a line begins with an opening
/// bracket.
bool looksRaw(const QByteArray& head);

} // namespace RawFileKind
