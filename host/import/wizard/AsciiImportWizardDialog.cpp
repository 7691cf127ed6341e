#include "AsciiImportWizardDialog.h"

#include "ColumnTargetDelegate.h"
#include "ImportNoticesView.h"
#include "Workbook.h"
#include "WorkbookModel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int grid = 8;
constexpr int margin = 2 * grid;
constexpr int narrowest = 8 * grid;
constexpr int widestPreview = 24 * grid;
constexpr int widestFact = 28 * grid;
constexpr int targetWidth = 34 * grid;
constexpr int rowsMeasured = 60;
constexpr int columnsMeasured = 200;

template <typename Widget>
Widget* named(const char* name) {
    auto* widget = new Widget;
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLabel* caption(const QString& text, QWidget* buddy = nullptr) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

/// What a person may read but not type in, row by row.
QTableView* table(const char* name, QAbstractItemModel& model) {
    auto* view = named<QTableView>(name);
    view->setModel(&model);
    view->setTabKeyNavigation(false);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    view->horizontalHeader()->setHighlightSections(false);
    view->verticalHeader()->setMinimumSectionSize(0);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + grid);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    return view;
}

/// A sheet may have thousands of columns; those far to the right keep the usual width.
void fitColumns(QTableView& view, int widest) {
    const int count = std::min(view.model()->columnCount(), columnsMeasured);
    for (int column = 0; column < count; ++column) {
        view.resizeColumnToContents(column);
        view.setColumnWidth(column, std::clamp(view.columnWidth(column), narrowest, widest));
    }
}

QWidget* below(const QString& text, QWidget* content) {
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid / 2);
    layout->addWidget(caption(text, content));
    layout->addWidget(content);
    return whole;
}

} // namespace

AsciiImportWizardDialog::AsciiImportWizardDialog(ImportDraft& draft, const QString& fileName, QWidget* parent)
    : QDialog(parent,
              Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      m_draft(draft), m_columns(draft), m_preview(draft), m_sheet(named<QComboBox>("sheet")),
      m_headerRow(named<QSpinBox>("headerRow")), m_headerRows(named<QSpinBox>("headerRows")),
      m_unitsRow(named<QSpinBox>("unitsRow")), m_firstDataRow(named<QSpinBox>("firstDataRow")),
      m_identifier(named<QComboBox>("identifier")), m_columnsView(table("columns", m_columns)),
      m_previewView(table("preview", m_preview)), m_notices(named<ImportNoticesView>("notices")),
      m_summary(named<QLabel>("summary")), m_import(named<QPushButton>("import")) {
    setObjectName(QStringLiteral("importWizard"));
    setWindowTitle(fileName.isEmpty() ? tr("Import of a table", "Import d'un tableau")
                                      : tr("Import of %1", "Import de %1").arg(fileName));
    auto* choices = new QGridLayout;
    buildChoices(*choices);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(buildColumns());
    splitter->addWidget(buildPreview());
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addLayout(choices);
    layout->addWidget(splitter, 1);
    layout->addWidget(buildFoot());
    connectChoices();
    showTable();
    m_import->setDefault(true);
    m_columnsView->setFocus();
    constexpr QSize wanted(120 * grid, 82 * grid);
    resize(wanted);
}

void AsciiImportWizardDialog::buildChoices(QGridLayout& layout) {
    layout.setHorizontalSpacing(margin);
    layout.setVerticalSpacing(grid / 2);
    int column = 0;
    const auto add = [&](const QString& text, QWidget* widget) {
        layout.addWidget(caption(text, widget), 0, column);
        layout.addWidget(widget, 1, column++);
    };
    add(tr("&Sheet", "&Feuille"), m_sheet);
    add(tr("&Header row", "Ligne d'&en-tête"), m_headerRow);
    add(tr("Its hei&ght", "&Hauteur"), m_headerRows);
    add(tr("&Units row", "Ligne d'&unités"), m_unitsRow);
    add(tr("&Data from row", "&Données dès"), m_firstDataRow);
    add(tr("Samples are &named by", "&Noms pris dans"), m_identifier);
    m_headerRows->setToolTip(tr("How many rows the header takes; the names in them are joined downward",
                                "Combien de lignes prend l'en-tête ; les noms y sont joints vers le bas"));
    layout.setColumnStretch(0, 1);
    layout.setColumnStretch(column - 1, 1);
    for (QSpinBox* rowless : {m_headerRow, m_unitsRow}) {
        rowless->setSpecialValueText(tr("none", "aucune"));
    }
    m_headerRows->setRange(1, TableLayout::mostHeaderRows);
    for (QComboBox* box : {m_sheet, m_identifier}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(12);
    }
    for (const auto& sheet : m_draft.sheets()) {
        m_sheet->addItem(sheet.hidden ? tr("%1 (hidden)", "%1 (masquée)").arg(sheet.name) : sheet.name);
    }
    m_sheet->setEnabled(m_sheet->count() > 1);
}

QWidget* AsciiImportWizardDialog::buildColumns() {
    m_columnsView->verticalHeader()->hide();
    m_columnsView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_columnsView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_columnsView->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_columnsView->setItemDelegateForColumn(ColumnListModel::Target, new ColumnTargetDelegate(this));
    m_columnsView->horizontalHeader()->setSectionResizeMode(ColumnListModel::Content, QHeaderView::Stretch);
    connect(m_columnsView, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == ColumnListModel::Target) {
            m_columnsView->edit(index);
        }
    });
    connect(&m_columns, &ColumnListModel::edited, this, &AsciiImportWizardDialog::showEdit);
    connect(m_columnsView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &AsciiImportWizardDialog::selectInPreview);
    return below(tr("&Columns", "&Colonnes"), m_columnsView);
}

QWidget* AsciiImportWizardDialog::buildPreview() {
    m_previewView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_previewView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_previewView->setSelectionBehavior(QAbstractItemView::SelectColumns);
    connect(m_previewView->selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
            &AsciiImportWizardDialog::selectInColumns);
    return below(tr("&Preview", "A&perçu"), m_previewView);
}

QWidget* AsciiImportWizardDialog::buildFoot() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setText(tr("Cancel", "Annuler"));
    cancel->setAutoDefault(false);
    m_import->setText(tr("Import", "Importer"));
    buttons->addButton(m_import, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* foot = new QWidget;
    auto* layout = new QGridLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(margin);
    layout->addWidget(m_notices, 0, 0, 1, 2);
    layout->addWidget(m_summary, 1, 0);
    layout->addWidget(buttons, 1, 1);
    layout->setColumnStretch(0, 1);
    return foot;
}

void AsciiImportWizardDialog::connectChoices() {
    const auto number = QOverload<int>::of(&QSpinBox::valueChanged);
    const auto chosen = QOverload<int>::of(&QComboBox::currentIndexChanged);
    const auto onTable = [this](auto change) {
        return [this, change](int value) {
            change(value);
            showTable();
        };
    };
    connect(m_sheet, chosen, this, onTable([this](int sheet) { m_draft.chooseSheet(sheet); }));
    connect(m_headerRow, number, this, onTable([this](int row) { m_draft.setHeaderRow(row - 1); }));
    connect(m_headerRows, number, this, onTable([this](int count) { m_draft.setHeaderRows(count); }));
    connect(m_unitsRow, number, this, onTable([this](int row) { m_draft.setUnitsRow(row - 1); }));
    connect(m_firstDataRow, number, this, onTable([this](int row) { m_draft.setFirstDataRow(row - 1); }));
    connect(m_identifier, chosen, this, [this](int place) {
        m_draft.setIdentifier(place);
        m_columns.refresh();
        showEdit();
    });
}

void AsciiImportWizardDialog::showTable() {
    showRows();
    showIdentifiers();
    m_columns.reset();
    m_preview.reset();
    fitColumns(*m_columnsView, widestFact);
    m_columnsView->setColumnWidth(ColumnListModel::Target, targetWidth);
    fitColumns(*m_previewView, widestPreview);
    const int topRow = std::max(m_draft.mapping().layout.headerRow, 0);
    m_previewView->scrollTo(m_preview.index(topRow, 0), QAbstractItemView::PositionAtTop);
    m_columnsView->selectRow(0);
    showEdit();
}

void AsciiImportWizardDialog::showEdit() {
    m_preview.refresh();
    m_notices->setNotices(ImportNotices::of(m_draft));
    showSummary();
    m_import->setEnabled(m_draft.isComplete());
}

void AsciiImportWizardDialog::showRows() {
    const TableLayout& layout = m_draft.mapping().layout;
    const int rows = m_draft.sheet().rowCount();
    const auto show = [](QSpinBox* box, int least, int most, int value) {
        const QSignalBlocker blocker(box);
        box->setRange(least, most);
        box->setValue(value);
    };
    const QSignalBlocker blocker(m_sheet);
    m_sheet->setCurrentIndex(m_draft.mapping().sheet);
    show(m_headerRow, 0, rows, layout.headerRow + 1);
    show(m_headerRows, 1, TableLayout::mostHeaderRows, layout.headerRows);
    show(m_unitsRow, 0, rows, layout.unitsRow + 1);
    show(m_firstDataRow, 1, rows + 1, layout.firstDataRow + 1);
    m_headerRows->setEnabled(layout.headerRow != TableLayout::none);
}

void AsciiImportWizardDialog::showIdentifiers() {
    const QSignalBlocker blocker(m_identifier);
    m_identifier->clear();
    for (int place = 0; place < m_draft.columnCount(); ++place) {
        const QString letters = WorkbookModel::columnLetters(m_draft.column(place).column);
        const QString text = m_draft.header(place).text();
        m_identifier->addItem(text.isEmpty() ? letters : QStringLiteral("%1 – %2").arg(letters, text));
    }
    m_identifier->setCurrentIndex(m_draft.mapping().identifier);
}

void AsciiImportWizardDialog::showSummary() {
    m_summary->setText(tr("Samples: %1. Columns: %2 of %3.", "Échantillons : %1. Colonnes : %2 sur %3.")
                           .arg(m_draft.sampleCount() - m_draft.identifiers().emptyRows().size())
                           .arg(m_draft.importedCount())
                           .arg(m_draft.columnCount()));
}

// Without leaving the rows that are shown.
void AsciiImportWizardDialog::selectInPreview(const QModelIndex& listed) {
    const int column = listed.isValid() ? m_draft.column(listed.row()).column : 0;
    const QModelIndex cell = m_preview.index(std::max(m_previewView->rowAt(0), 0), column);
    if (cell.isValid() && m_previewView->currentIndex().column() != column) {
        m_previewView->setCurrentIndex(cell);
    }
}

void AsciiImportWizardDialog::selectInColumns(const QModelIndex& cell) {
    const int place = cell.isValid() ? m_draft.placeOf(cell.column()) : TableLayout::none;
    if (place >= 0 && m_columnsView->currentIndex().row() != place) {
        m_columnsView->selectRow(place);
    }
}
