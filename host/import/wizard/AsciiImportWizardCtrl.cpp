#include "AsciiImportWizardCtrl.h"

#include "AsciiImportWizardDialog.h"
#include "AsciiImportWizardStrategy.h"
#include "ModelSheet.h"
#include "VKDataModelGeneric.h"
#include "WorkbookModel.h"

#include <QApplication>
#include <QPointer>

namespace {

/// False also if the window that the dialog belongs to was closed, and the dialog with it.
bool confirm(ImportDraft& draft, const QString& fileName) {
    const QPointer<AsciiImportWizardDialog> dialog(
        new AsciiImportWizardDialog(draft, fileName, QApplication::activeWindow()));
    const bool isConfirmed = dialog->exec() == QDialog::Accepted && !dialog.isNull();
    delete dialog;
    return isConfirmed;
}

} // namespace

AsciiImportWizardCtrl::AsciiImportWizardCtrl() = default;
AsciiImportWizardCtrl::~AsciiImportWizardCtrl() = default;

void AsciiImportWizardCtrl::initExec(QAbstractItemModel* table, AsciiImportWizardStrategy* strategy) {
    m_model.reset();
    m_strategy.reset(strategy);
    if (table == nullptr || strategy == nullptr) {
        return;
    }
    std::vector<Workbook::Sheet> single;
    const auto* workbook = qobject_cast<const WorkbookModel*>(table);
    if (workbook == nullptr) {
        single.push_back(ModelSheet::read(*table));
    }
    ImportDraft draft(workbook == nullptr ? single : workbook->book().sheets,
                      workbook == nullptr ? 0 : workbook->proposedSheet(), *m_strategy);
    if (confirm(draft, workbook == nullptr ? QString() : workbook->fileName())) {
        m_model = draft.table();
        draft.remember();
    }
}

QAbstractItemModel* AsciiImportWizardCtrl::createModel() {
    return m_model.get();
}
