#pragma once

/// Numbers that the import modules and the host agree on.

/// Under this role, section 0 of the vertical header of a wizard's table holds the name of the column that
/// identifies the samples.
constexpr int ID_NAME_ROLE = 5;

/// Under this role the host stores and reads datasets, headers and cells. No role of the toolkit.
constexpr int DATASET_ROLE = 34;

/// Which readers `VKImportCtrl::getDll` gives: of tables, and of raw Rock-Eval VI files.
constexpr int EXCEL_IMPORT_ID = 24;
constexpr int ROCK_EVAL_IMPORT_ID = 25;
