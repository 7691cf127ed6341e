#pragma once

#include "Answers.h"
#include "Chance.h"
#include "Hands.h"
#include "Workbench.h"

#include <QDir>
#include <QStringList>

class QTreeView;

/// A user's hour in minutes: anything that can be done in the workbench, in any order. The same seed does the
/// same again.
class Walk {
public:
    /// Where there are files to import, and where to write.
    struct Places {
        QDir files;
        QDir output;
    };

    Walk(Workbench& workbench, const Places& places, unsigned seed);

    /// Does what comes next, until nothing more follows from it, and gives its name.
    const char* step();

    /// Ends all that was opened and leaves the window as it was at its start.
    static void tidyUp(Workbench& workbench);

private:
    struct Act {
        const char* name;
        int weight; ///< how often it comes, beside the others
        void (*run)(Walk& walk);
    };
    static const Act acts[];

    void openProject();
    void closeProject();
    void listFiles();
    void send();
    void dragFromTree();
    void selectInCheck();
    void moveSlider();
    void openResults();
    void selectInTree();
    void openBranches();
    void renameInTree();
    void runTreeCommand();
    void runMenuEntry();
    void closePage();
    void speak();
    void dress();
    void fiddle();

    const Act& someAct();
    QStringList someFiles();
    ImportModules::Kind someKind();
    QTreeView& tree();

    Workbench& m_workbench;
    Places m_places;
    Chance m_chance;
    Hands m_hands;
    Answers m_answers;
};
