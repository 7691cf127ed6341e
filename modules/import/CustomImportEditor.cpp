#include "CustomImportEditor.h"

QString CustomImportEditor::dropText() {
    return tr("Drop here your Excel files containing your data to import.",
              "Déposer ici vos fichiers Excels contenant vos données à importer.");
}

QPixmap CustomImportEditor::modulePixmap() {
    return QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_CustomImport.png");
}
