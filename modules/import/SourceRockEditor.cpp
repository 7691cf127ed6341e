#include "SourceRockEditor.h"

QString SourceRockEditor::dropText() {
    return tr("Drop here your Source Rock data:\n - Raw file from RockEval VI (.S00 and .R00 files)\n - "
              "Excel files",
              "Déposer ici vos données Source Rock :\n - Fichiers bruts de RockEval VI (les fichiers .S00 et "
              ".R00)\n - Fichiers Excel");
}

QPixmap SourceRockEditor::modulePixmap() {
    return QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_SourceRock_Import.png");
}
