#include "VornEditor.h"

#include "MessageLoggerInterface.h"
#include "TPixmapCache.h"
#include "VKRibbonGroupExpandable.h"
#include "VKTreeWidget.h"
#include "VornCtrl.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int noValue = -9999;
constexpr int helpIdentifier = 120;
constexpr int moduleLabelWidth = 480;

// The path stands behind the columns that are shown.
enum Column { StatusColumn, NameColumn, DeleteColumn, PathColumn };

QIcon statusIcon(int code) {
    switch (code) {
    case VornCtrl::ImportPending:
        return QIcon(":/Ressources/png/toolbar/blue_plus.png");
    case VornCtrl::ImportDone:
        return QIcon(":/Ressources/png/workflow/action_32.png");
    case VornCtrl::ImportFailed:
        return QIcon(":/Ressources/png/toolbar/close_project.png");
    default:
        return {};
    }
}

/// What a row shows, at hand without asking its cells.
class FileRow : public QTreeWidgetItem {
public:
    explicit FileRow(const QString& path) : QTreeWidgetItem(QTreeWidgetItem::Type), m_path(path) {
        setText(NameColumn, QFileInfo(path).fileName());
        // Found along the search paths of the resources, so that an application may put its own in front.
        setIcon(DeleteColumn, QIcon(":Ressources/png/toolbar/delete_generic.png"));
        setTextAlignment(DeleteColumn, Qt::AlignHCenter);
        setText(PathColumn, path);
    }

    const QString& path() const { return m_path; }
    /// One icon for all rows of a status, so that its picture is read once.
    void setStatus(int code, QHash<int, QIcon>& icons) {
        if (code == m_code) {
            return;
        }
        m_code = code;
        if (!icons.contains(code)) {
            icons.insert(code, statusIcon(code));
        }
        setIcon(StatusColumn, icons.value(code));
    }

private:
    QString m_path;
    int m_code = noValue;
};

} // namespace

VornEditor::VornEditor(const QString& title, QHash<QString, int>& files)
    : VKRibbonModuleBar(title), m_files(&files) {}

VornEditor::~VornEditor() {
    if (m_fileTree != nullptr) {
        disconnect(m_fileTree, &VKTreeWidget::dataDroppped, this, &VornEditor::slotDrop);
    }
    if (m_importButton != nullptr) {
        disconnect(m_importButton, &QToolButton::released, this, &VornEditor::slotImportButton);
    }
}

void VornEditor::setupEditor(VornCtrl* ctrl) {
    initRibbon(ctrl);
    initFileTree();
}

void VornEditor::initRibbon(VornCtrl* ctrl) {
    createDescriptionGroup(noValue, true);
    if (ctrl != nullptr) {
        createActionGroup(ctrl->getActionList());
    }
    registerObserver(ctrl);
    const QIcon icon(TPixmapCache::find("launch"));
    m_importButton =
        actionGroup()->insertButton(tr("Import", "Importer"), icon, 0, VKRibbonGroup::LargeButton);
    m_importButton->setEnabled(false);
    reportUnless(connect(m_importButton, &QToolButton::released, this, &VornEditor::slotImportButton));

    m_expandGroup = new VKRibbonGroupExpandable(title(), this);
    mainLayout()->addWidget(m_expandGroup, 0, {});
    m_expandGroup->setPinState(true);
    m_expandGroup->layout()->setMargin(0);
    m_expandGroup->canBeExpanded(true);
    m_expandGroup->addWidget(createModuleLabel(title(), moduleLabelWidth));
    mainLayout()->insertWidget(1, m_expandGroup, 0, {});

    m_pixmap = modulePixmap();
    setModuleDescription(m_pixmap, tr("Import data", "Import data"));
    addGenericActions(false, false);
    actionGroup()->setTitle(tr("Actions", "Actions"));
}

void VornEditor::initFileTree() {
    auto* const box = new QGroupBox(this);
    auto* const layout = new QVBoxLayout(box);
    m_fileTree = new VKTreeWidget(box, QString());
    m_fileTree->setHeaderLabels({tr("Status", "Status"), tr("File name", "Nom du fichier"), ""});
    m_fileTree->resizeColumnToContents(StatusColumn);
    m_fileTree->setDropText(dropText());
    m_fileTree->setAcceptDrops(true);
    m_fileTree->setColumnCount(PathColumn);
    m_fileTree->setUniformRowHeights(true);
    connect(m_fileTree, &QTreeWidget::itemClicked, this, &VornEditor::slotItemClicked);
    reportUnless(connect(m_fileTree, &VKTreeWidget::dataDroppped, this, &VornEditor::slotDrop));
    layout->addWidget(m_fileTree, 0, {});
    m_expandGroup->setContent(box);
}

void VornEditor::reportUnless(const QMetaObject::Connection& connected) {
    if (!static_cast<bool>(connected)) {
        MessageLoggerInterface::Debug(
            tr("VornD editor initialization error", "Erreur d'initialisation de VornEditor"));
    }
}

void VornEditor::refreshFileTree() {
    // A pass over a thousand files comes here after each: rows made anew each time would take minutes.
    if (m_files->isEmpty() || !updateStatuses()) {
        listFiles();
    }
    // The tree's own parts count, not its rows: from the first list on the button is open, and who presses
    // it without a file is told so by the controller.
    if (!m_fileTree->children().isEmpty()) {
        m_importButton->setEnabled(true);
    }
}

/// False if the rows are not those of the files.
bool VornEditor::updateStatuses() {
    if (m_fileTree->topLevelItemCount() != m_files->size()) {
        return false;
    }
    int row = 0;
    for (auto file = m_files->cbegin(); file != m_files->cend(); ++file, ++row) {
        auto* const shown = static_cast<FileRow*>(m_fileTree->topLevelItem(row)); // only this bar adds rows
        if (shown->path() != file.key()) {
            return false;
        }
        shown->setStatus(file.value(), m_statusIcons);
    }
    return true;
}

void VornEditor::listFiles() {
    m_fileTree->clear();
    for (auto file = m_files->cbegin(); file != m_files->cend(); ++file) {
        if (file.key().isEmpty()) {
            break; // there is none in a list that its controller filled
        }
        auto* const row = new FileRow(file.key());
        row->setStatus(file.value(), m_statusIcons);
        m_fileTree->addTopLevelItem(row);
    }
    m_fileTree->resizeColumnToContents(StatusColumn);
    m_fileTree->resizeColumnToContents(NameColumn);
}

int VornEditor::getIdForHelp() const {
    return helpIdentifier;
}

void VornEditor::slotDrop(const QStringList& paths) {
    emit filesDropped(paths);
}

void VornEditor::slotImportButton() {
    emit importAsked();
}

void VornEditor::slotItemClicked(QTreeWidgetItem* clickedItem, int column) {
    if (column != DeleteColumn) {
        return;
    }
    emit fileDelete(clickedItem->text(PathColumn));
    delete clickedItem;
    m_fileTree->resizeColumnToContents(NameColumn);
}
