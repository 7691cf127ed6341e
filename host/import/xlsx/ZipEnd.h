#pragma once

#include <QByteArray>

/// The end of a zip archive, which says where its list of files is.
namespace ZipEnd {

/// How many bytes of lists have to be read before it is known which one holds: a comment may look like
/// another end, and each is tried. No more than the whole file counts for one of them.
qint64 bytesOfLists(const QByteArray& archive);

} // namespace ZipEnd
