#pragma once

#include "ColumnListModel.h"
#include "HelpId.h"
#include "HelpInterface.h"
#include "ImportDraft.h"
#include "SheetPreviewModel.h"

#include <QDialog>

class ImportNoticesView;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableView;

/// Shows a draft of an import and lets a person correct it: the rows of the table and the column that names
/// the samples at the top, then what becomes of each column, the sheet as it will be imported, and what there
/// is to know before. Its widgets only show the draft and pass on what is chosen.
class AsciiImportWizardDialog : public QDialog, public HelpInterface {
    Q_OBJECT

public:
    /// Refers to the draft. The file's name, which may be empty, stands in the title.
    AsciiImportWizardDialog(ImportDraft& draft, const QString& fileName, QWidget* parent);

    int getIdForHelp() const override { return HelpId::wizard; }

private:
    void buildChoices(QGridLayout& layout);
    QWidget* buildColumns();
    QWidget* buildPreview();
    QWidget* buildFoot();
    void connectChoices();

    /// After another sheet or other rows.
    void showTable();
    /// After other targets, decimal marks or another identifying column.
    void showEdit();
    void showRows();
    void showIdentifiers();
    void showSummary();
    void selectInPreview(const QModelIndex& listed);
    void selectInColumns(const QModelIndex& cell);

    ImportDraft& m_draft;
    ColumnListModel m_columns;
    SheetPreviewModel m_preview;
    QComboBox* m_sheet;
    QSpinBox* m_headerRow;
    QSpinBox* m_headerRows;
    QSpinBox* m_unitsRow;
    QSpinBox* m_firstDataRow;
    QComboBox* m_identifier;
    QTableView* m_columnsView;
    QTableView* m_previewView;
    ImportNoticesView* m_notices;
    QLabel* m_summary;
    QPushButton* m_import;
};
