#include "ProjectTree.h"

#include "ExpansionKeeper.h"
#include "ObjectRemoval.h"
#include "ProjectTreeModel.h"
#include "ProjectView.h"
#include "TActionText.h"
#include "TDatabase.h"
#include "TLineIcon.h"
#include "VKError.h"
#include "VKObject2.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

using Kind = ProjectNode::Kind;

namespace {

constexpr int grid = 8;
constexpr int longestQuote = 160; // pixels of the filter's text in a sentence

QList<const VKObject2*> analysesAmong(QList<const VKObject2*> objects) {
    const auto isOther = [](const VKObject2* object) { return object->type() != VKObjectType::Analysis; };
    objects.erase(std::remove_if(objects.begin(), objects.end(), isOther), objects.end());
    return objects;
}

} // namespace

ProjectTree::ProjectTree(QWidget* parent)
    : QWidget(parent), m_model(new ProjectTreeModel(this)), m_filter(new QLineEdit(this)),
      m_view(new ProjectView(*m_model, this)), m_expansion(new ExpansionKeeper(m_view, m_model)),
      m_open(addCommand(QStringLiteral("table"), &ProjectTree::open)),
      m_rename(addCommand(QStringLiteral("rename"), &ProjectTree::rename)),
      m_remove(addCommand(QStringLiteral("delete_generic"), &ProjectTree::removeSelected)),
      m_export(addCommand(QStringLiteral("export"), &ProjectTree::exportSelected)),
      m_send(addCommand(QStringLiteral("send"), &ProjectTree::send)) {
    // Enter belongs to the line that is edited wherever there is one.
    m_open->setShortcutContext(Qt::WidgetShortcut);
    m_open->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    m_rename->setShortcut(Qt::Key_F2);
    m_remove->setShortcut(QKeySequence::Delete);
    m_send->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Return")), QKeySequence(QStringLiteral("Ctrl+Enter"))});
    layOut();
    connectParts();
    retranslate();
    updateState();
}

ProjectTree::~ProjectTree() = default;

QAction* ProjectTree::addCommand(const QString& icon, void (ProjectTree::*run)()) {
    auto* const action = new QAction(TLineIcon::icon(icon), {}, this);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, run);
    m_view->addAction(action);
    return action;
}

void ProjectTree::layOut() {
    m_filter->addAction(TLineIcon::icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    auto* const filterRow = new QVBoxLayout;
    filterRow->setContentsMargins(grid, grid, grid, grid);
    filterRow->addWidget(m_filter);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(filterRow);
    column->addWidget(m_view, 1);
    setFocusProxy(m_view);
}

void ProjectTree::connectParts() {
    m_pendingRefresh.setSingleShot(true);
    m_pendingRefresh.setInterval(0);
    connect(&m_pendingRefresh, &QTimer::timeout, this, &ProjectTree::refresh);
    connect(m_filter, &QLineEdit::textChanged, this, &ProjectTree::applyFilter);
    connect(m_view, &ProjectView::selectionMayHaveChanged, this, &ProjectTree::updateActions);
    connect(m_view, &ProjectView::menuRequested, this, &ProjectTree::showMenu);
    connect(m_view, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (m_model->node(index).kind == Kind::Section) {
            m_view->setExpanded(index, !m_view->isExpanded(index));
        } else {
            open();
        }
    });
}

void ProjectTree::setProject(TechDB::TDatabase* project) {
    if (m_project != nullptr) {
        m_project->disconnect(this);
    }
    m_project = project;
    m_pendingRefresh.stop();
    m_expansion->forget();
    m_model->setProject(nullptr); // the filter's end is none for either project
    m_filter->clear();
    m_model->setProject(project);
    if (project != nullptr) {
        connect(project, &TechDB::TDatabase::changed, this, &ProjectTree::refreshSoon);
        connect(project, &TechDB::TDatabase::changedElsewhere, this, &ProjectTree::refreshSoon);
    }
    refresh();
}

void ProjectTree::refreshSoon() {
    m_pendingRefresh.start();
}

void ProjectTree::refresh() {
    m_pendingRefresh.stop();
    try {
        m_model->refresh(heldRows());
    } catch (const VKError& error) {
        VKError::dispatchError(error);
    }
    updateState();
}

QList<const VKObject2*> ProjectTree::selectedObjects() const {
    return m_model->objects(ProjectTreeModel::topToBottom(m_view->selectionModel()->selectedRows()));
}

QModelIndexList ProjectTree::heldRows() const {
    return m_view->selectionModel()->selectedRows() << m_view->currentIndex();
}

void ProjectTree::focusFilter() {
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void ProjectTree::applyFilter() {
    try {
        m_model->setFilter(m_filter->text(), heldRows());
    } catch (const VKError& error) {
        VKError::dispatchError(error);
    }
    m_expansion->apply();
    if (m_view->currentIndex().isValid()) {
        m_view->scrollTo(m_view->currentIndex());
    }
    updateHint();
}

bool ProjectTree::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_filter || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enterView();
        return true;
    case Qt::Key_Escape:
        if (m_filter->text().isEmpty()) {
            return false;
        }
        m_filter->clear();
        return true;
    default:
        return false;
    }
}

void ProjectTree::enterView() {
    m_view->setFocus(Qt::TabFocusReason);
    if (!m_view->selectionModel()->hasSelection()) {
        m_view->setCurrentIndex(m_model->index(0, 0, m_model->index(0, 0)));
    }
}

void ProjectTree::updateState() {
    const bool isEmpty = m_model->isEmpty();
    m_filter->setEnabled(!isEmpty);
    m_view->header()->setHidden(isEmpty);
    updateHint();
    updateActions();
}

void ProjectTree::updateHint() {
    if (m_project == nullptr) {
        m_view->setHint(tr(
            "No project is open.\n\nOpen one (Ctrl+O), make a new one (Ctrl+N), or drop one on the window.",
            "Aucun projet n'est ouvert.\n\nOuvrez-en un (Ctrl+O), créez-en un nouveau (Ctrl+N), ou "
            "déposez-en un dans la fenêtre."));
    } else if (m_model->isEmpty()) {
        m_view->setHint(tr("This project holds nothing yet.\n\nDrop files or folders anywhere on the window, "
                           "or choose them with Ctrl+I.",
                           "Ce projet ne contient encore rien.\n\nDéposez des fichiers ou des dossiers "
                           "n'importe où dans la fenêtre, ou choisissez-les avec Ctrl+I."));
    } else {
        m_view->setHint(tr("No name holds “%1”.\n\nClear the filter to see everything.",
                           "Aucun nom ne contient « %1 ».\n\nEffacez le filtre pour tout voir.")
                            .arg(fontMetrics().elidedText(m_model->filter(), Qt::ElideRight, longestQuote)));
    }
}

void ProjectTree::updateActions() {
    int objects = 0;
    int analyses = 0;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    bool opens = false;
    for (const QModelIndex& row : rows) {
        const ProjectNode& node = m_model->node(row);
        objects += node.isObject() ? 1 : 0;
        analyses += node.kind == Kind::Analysis ? 1 : 0;
        opens = opens || node.isObject() || node.kind == Kind::Sample;
    }
    m_open->setEnabled(opens);
    m_rename->setEnabled(objects == 1 && rows.size() == 1);
    m_remove->setEnabled(objects > 0);
    m_export->setEnabled(objects > 0);
    m_send->setEnabled(analyses > 0);
}

void ProjectTree::retranslate() {
    m_filter->setPlaceholderText(tr("Filter by name", "Filtrer par nom"));
    m_filter->setToolTip(tr("Show only what has this in its name (Ctrl+F)",
                            "N'afficher que ce dont le nom contient ce texte (Ctrl+F)"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_view->setAccessibleName(tr("Content of the project", "Contenu du projet"));
    m_open->setText(tr("Open as table", "Ouvrir en tableau"));
    m_rename->setText(tr("Rename", "Renommer"));
    m_remove->setText(tr("Delete…", "Supprimer…"));
    m_export->setText(tr("Export as CSV…", "Exporter en CSV…"));
    m_send->setText(tr("Send to the quality check", "Envoyer au contrôle qualité"));
    for (QAction* action : {m_open, m_rename, m_remove, m_send}) {
        TActionText::set(*action, action->text(), action->text());
    }
    updateHint();
}

void ProjectTree::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        m_model->retranslate();
        retranslate();
    }
}

void ProjectTree::showMenu(const QPoint& place) {
    if (m_model->isEmpty()) {
        return;
    }
    QMenu menu(this);
    menu.addActions({m_open, m_send});
    menu.addSeparator();
    menu.addActions({m_export, m_rename});
    menu.addSeparator();
    menu.addAction(m_remove);
    menu.exec(place);
}

void ProjectTree::open() {
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    for (QModelIndex& row : rows) {
        row = m_model->node(row).kind == Kind::Sample ? row.parent() : row;
    }
    const auto objects = m_model->objects(ProjectTreeModel::topToBottom(rows));
    if (!objects.isEmpty()) {
        emit openRequested(objects);
    }
}

void ProjectTree::rename() {
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    if (rows.size() == 1) {
        m_view->setCurrentIndex(rows.first());
        m_view->edit(rows.first());
    }
}

void ProjectTree::removeSelected() {
    const auto objects = selectedObjects();
    if (objects.isEmpty() || !ObjectRemoval::isAgreed(this, objects)) {
        return;
    }
    try {
        ObjectRemoval::run(*m_project, objects);
    } catch (const VKError& error) {
        VKError::dispatchError(error);
    }
    refresh();
}

void ProjectTree::exportSelected() {
    const auto objects = selectedObjects();
    if (!objects.isEmpty()) {
        emit exportRequested(objects);
    }
}

void ProjectTree::send() {
    const auto objects = analysesAmong(selectedObjects());
    if (!objects.isEmpty()) {
        emit sendRequested(objects);
    }
}
