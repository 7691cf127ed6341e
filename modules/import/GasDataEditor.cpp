#include "GasDataEditor.h"

QString GasDataEditor::dropText() {
    return tr("Drop here your Excel files containing the Gas data.",
              "Déposer ici vos fichiers Excels contenant vos données Gaz.");
}

QPixmap GasDataEditor::modulePixmap() {
    return QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_Isotopes.png");
}
