#pragma once

#include "VKDataModel.h"

#include <QList>
#include <QString>

#include <memory>

class VKObject2;

/// The contents of a stored object as a table under the object's and its project's name: the curve of an
/// analysis or signal (`CurveTable`), the samples of a dataset (`DatasetTable`).
class ObjectTable {
public:
    /// A copy of what is stored at this moment, with its `TableOrigin`. Throws VKError if it can't be read.
    static std::unique_ptr<VKDataModel> of(const VKObject2& object);

    /// Writes each object to a CSV file (`CsvText`): a single one to the file named, replacing it; several,
    /// or one if a folder is named, into that existing folder under their own names, made safe and with a
    /// number where a file lies already. Beside them one file says what they rest on (`OriginFile`). Success
    /// and every failure go to the user's log; what fails doesn't keep the others back.
    static void exportCsv(const QList<const VKObject2*>& objects, const QString& folderOrFile);
};
