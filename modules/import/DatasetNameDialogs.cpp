#include "DatasetNameDialogs.h"

#include "ApplicationInterface.h"
#include "TInputsDialog.h"
#include "VornCtrl.h"

#include <QMessageBox>
#include <QPushButton>

DatasetNameDialogs::Choice DatasetNameDialogs::askWhatToDo(const QString& existingName) {
    QMessageBox box(QMessageBox::Warning, VornCtrl::tr("Vorn Import module", "Module d'import Vorn"),
                    VornCtrl::tr("A dataset named <b>%1</b> already exists, do you want to overwrite  it?",
                                 "Un ensemble de données portant le nom <b>%1</b> existe déjà. Voulez-vous "
                                 "l'écraser ?")
                        .arg(existingName.toHtmlEscaped()),
                    QMessageBox::NoButton, nullptr);
    const QAbstractButton* const overwrite =
        box.addButton(VornCtrl::tr("Overwrite", "Écraser"), QMessageBox::ActionRole);
    const QAbstractButton* const rename =
        box.addButton(VornCtrl::tr("Rename", "Renommer"), QMessageBox::ActionRole);
    QPushButton* const cancel =
        box.addButton(VornCtrl::tr("Cancel import", "Annuler l'import"), QMessageBox::ActionRole);
    // Without it, none of the roles answers the Escape key and the window's close control.
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == overwrite) {
        return Choice::Overwrite;
    }
    return box.clickedButton() == rename ? Choice::Rename : Choice::Cancel;
}

QString DatasetNameDialogs::askNewName(const QString& present) {
    const QString key = QStringLiteral("well_name");
    TInputsDialog dialog(VornCtrl::tr("Defining of the dataset name to be saved",
                                      "Définition du nom de l'ensemble de données à sauvegarder"),
                         ApplicationInterface::returnMe()->mainWidget());
    dialog.addTextInput(key, VornCtrl::tr("Dataset name:", "Nom de l'ensemble de données:"), present,
                        QLineEdit::Normal,
                        VornCtrl::tr("Type the dataset name to be saved",
                                     "Entrez l'ensemble de données du dataset à sauvegarder"));
    return dialog.exec() == 1 ? dialog.getTextIntput(key) : present;
}
