#pragma once

#include "ImportModules.h"

class PictureFolder;
class Workbench;

/// Imports the examples that the application carries, as a hand would, where nobody sits: raw files and
/// tables dropped on the modules, the wizard's proposal taken, questions answered. Leaves the files in the
/// folder.
class ImportTour {
public:
    /// Both outlive this object. A project must be open.
    ImportTour(Workbench& workbench, const PictureFolder& pictures);

    /// All raw files through the source-rock import.
    void importRawFiles();

    /// A table of source rocks, which is then opened, with pictures of the wizard and of the table; and twice
    /// one of unknown columns, so that the questions and messages of a second import come too.
    void importTables();

    /// A folder of files of several kinds, dropped on the window, with pictures of what is asked before and
    /// told after it.
    void dropFolder();

private:
    void openFromTree(const QString& end);
    void closeModule(ImportModules::Kind kind);

    Workbench& m_workbench;
    const PictureFolder& m_pictures;
};
