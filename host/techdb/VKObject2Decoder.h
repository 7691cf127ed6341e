#pragma once

#include <QList>

class QMimeData;
class VKObject2;

/// What a drag of stored objects carries, and how a drop finds them again: for each object the id of its
/// project, its type and its key, in the format "application/x-tavrel-objects". Nothing of it is an address,
/// so a drag may come from anywhere.
class VKObject2Decoder {
public:
    static const char* mimeType();

    /// The data for a drag; the caller, most often a QDrag, owns it. Objects in no database are left out.
    static QMimeData* encode(const QList<const VKObject2*>& objects);

    /// Whether the data are whole and at least one object stands in a project that is open here. Quick: no
    /// object is looked up. False for null.
    static bool canDecode(const QMimeData* data);

    /// The objects in the order of the drag. Left out are those of a project that isn't open here, and those
    /// that aren't there any more. Empty for null and for data that are not whole. A database that can't be
    /// read is reported and gives none.
    static QList<const VKObject2*> decodeObject(const QMimeData* data);
};
