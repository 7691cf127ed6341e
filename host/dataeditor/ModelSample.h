#pragma once

#include "SampleTable.h"

class QAbstractItemModel;

/// A model as the table of a sample.
namespace ModelSample {

/// Reads headers and cells under `role`. A cell that holds a number is stored as one, empty text and what is
/// null as nothing, any other as text. A row or column without a header is named by its number: rows count
/// from 1, columns behind the `columnsBefore` that the sample has already. The properties are those of a
/// VKDataModel. Throws VKError for a model that is too large and for a cell that is neither number nor text.
TechDB::SampleTable read(const QAbstractItemModel& model, int role, int columnsBefore);

} // namespace ModelSample
