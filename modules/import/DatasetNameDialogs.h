#pragma once

#include <QString>

/// What the user is asked when a dataset of the name to be stored exists already. The texts are those of
/// `VornCtrl`.
namespace DatasetNameDialogs {

/// What becomes of a dataset whose name is taken.
enum class Choice { Overwrite, Rename, Cancel };

/// Closing the question is a cancel.
Choice askWhatToDo(const QString& existingName);

/// The name that the user typed; `present` if he did not confirm one.
QString askNewName(const QString& present);

} // namespace DatasetNameDialogs
