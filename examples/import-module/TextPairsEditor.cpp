#include "TextPairsEditor.h"

QString TextPairsEditor::dropText() {
    return tr("Drop here your text files of two columns: sample and value.",
              "Déposer ici vos fichiers texte de deux colonnes : échantillon et valeur.");
}

QPixmap TextPairsEditor::modulePixmap() {
    return QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_CustomImport.png");
}
