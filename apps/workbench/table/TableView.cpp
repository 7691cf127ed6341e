#include "TableView.h"

#include "ClipboardText.h"
#include "CsvFile.h"
#include "MessageLoggerInterface.h"
#include "OriginFile.h"
#include "TExportCommand.h"
#include "TableBar.h"
#include "TableGrid.h"
#include "TableOrder.h"
#include "TableOrigin.h"
#include "VKError.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSettings>
#include <QVBoxLayout>

#include <utility>

namespace {

QString folderKey() {
    return QStringLiteral("workbench/tableFolder");
}

} // namespace

TableView::TableView(std::unique_ptr<VKDataModel> model, QWidget* parent)
    : QWidget(parent), m_model(std::move(model)), m_order(std::make_unique<TableOrder>(*m_model)),
      m_bar(new TableBar(this)), m_grid(new TableGrid(*m_order, this)), m_shownTitle(title()) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_grid);
    setFocusProxy(m_grid);
    connectCommands();
    updateCaption();
}

TableView::~TableView() {
    delete m_grid; // before the models that it shows
}

void TableView::connectCommands() {
    for (QAction* action : {m_bar->copyAction(), m_bar->copyWithHeadersAction()}) {
        m_grid->addAction(action);
        action->setEnabled(false);
        connect(m_grid, &TableGrid::cellsChosen, action, &QAction::setEnabled);
        connect(m_order.get(), &QAbstractItemModel::modelReset, action,
                [action] { action->setEnabled(false); });
    }
    addAction(m_bar->exportAction());
    connect(m_bar->copyAction(), &QAction::triggered, this, [this] { copy(false); });
    connect(m_bar->copyWithHeadersAction(), &QAction::triggered, this, [this] { copy(true); });
    connect(m_bar->exportAction(), &QAction::triggered, this, &TableView::askWhereToExport);
    connect(m_order.get(), &QAbstractItemModel::modelReset, this, &TableView::updateCaption);
}

QString TableView::title() const {
    return m_model->name().isEmpty() ? tr("Table", "Tableau") : m_model->name();
}

void TableView::refreshCells() {
    m_order->sortAgain();
    m_grid->viewport()->update();
    updateTitle();
}

void TableView::updateTitle() {
    updateCaption();
    if (const QString now = title(); now != m_shownTitle) {
        m_shownTitle = now;
        emit titleChanged(now);
    }
}

void TableView::updateCaption() {
    const int rows = m_order->rowCount();
    const int columns = m_order->columnCount();
    QStringList parts{title(), m_model->project(),
                      rows == 0   ? tr("no rows", "aucune ligne")
                      : rows == 1 ? tr("1 row", "1 ligne")
                                  : tr("%1 rows", "%1 lignes").arg(locale().toString(rows)),
                      columns == 1 ? tr("1 column", "1 colonne")
                                   : tr("%1 columns", "%1 colonnes").arg(locale().toString(columns))};
    parts.removeAll({});
    m_bar->setCaption(parts.join(QStringLiteral("  ·  ")));
}

void TableView::copy(bool withHeaders) {
    const QItemSelection cells = m_grid->chosenCells();
    if (cells.isEmpty()) {
        return;
    }
    try {
        // Pasted text is read by the rules of the system, whatever language is chosen here.
        const ClipboardText text(*m_order, cells, QLocale::system().decimalPoint());
        QGuiApplication::clipboard()->setText(withHeaders ? text.cellsWithHeaders() : text.cells());
    } catch (const std::exception& error) { // memory may give out as well
        VKError::dispatchError(error);
    }
}

void TableView::exportTo(const QString& path) {
    try {
        CsvFile::write(*m_order, path);
        MessageLoggerInterface::Information(
            tr("The table was exported to <b>%1</b>.", "Le tableau a été exporté vers <b>%1</b>.")
                .arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
        if (const TableOrigin* const origin = TableOrigin::of(*m_model)) {
            OriginFile::writeBeside(path, origin->origin());
        }
        emit exported(path);
    } catch (const std::exception& error) {
        VKError::dispatchError(error);
    }
}

void TableView::askWhereToExport() {
    const QDir folder(QSettings().value(folderKey(), QDir::homePath()).toString());
    auto* const dialog = new QFileDialog(this, tr("Export table", "Exporter le tableau"), folder.path(),
                                         tr("CSV file (*.csv)", "Fichier CSV (*.csv)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->selectFile(TechPlot::TExportCommand::fileNameFor(title()) + QStringLiteral(".csv"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        QSettings().setValue(folderKey(), QFileInfo(path).absolutePath());
        exportTo(path);
    });
    dialog->open();
}

void TableView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        updateTitle();
        m_grid->viewport()->update();
        m_grid->horizontalHeader()->viewport()->update();
    }
    QWidget::changeEvent(event);
}
