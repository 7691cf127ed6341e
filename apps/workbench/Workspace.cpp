#include "Workspace.h"

#include "EmptyPage.h"
#include "TEditor.h"
#include "TLineIcon.h"
#include "TToolButton.h"
#include "TableView.h"
#include "VKDataModel.h"

#include <QEvent>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr int closeIcon = 12;

/// A tab takes a single & for the mark of a key.
QString tabText(QString title) {
    return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

Workspace::Workspace(QWidget* parent)
    : QStackedWidget(parent), m_tabs(new QTabWidget), m_empty(new EmptyPage) {
    addWidget(m_empty);
    addWidget(m_tabs);
    m_tabs->setDocumentMode(true);
    m_tabs->setMovable(true);
    m_tabs->setElideMode(Qt::ElideMiddle);
    // Also when a page was destroyed by its owner.
    connect(m_tabs, &QTabWidget::currentChanged, this, &Workspace::showState);
    auto* const close = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_F4), this);
    connect(close, &QShortcut::activated, this, [this] { closeTab(m_tabs->currentIndex()); });
    translate();
}

Workspace::~Workspace() {
    m_tabs->disconnect(this);
}

void Workspace::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        translate();
    }
    QStackedWidget::changeEvent(event);
}

void Workspace::translate() {
    m_empty->setTexts(tr("Nothing on screen yet", "Rien à l'écran pour l'instant"),
                      tr("Drop files or folders anywhere on this window to import them. To see curves and "
                         "grades, select analyses in the project at the left and press Ctrl+Enter. F1 opens "
                         "the guide.",
                         "Déposez des fichiers ou des dossiers n'importe où dans cette fenêtre pour les "
                         "importer. Pour voir des courbes et leurs évaluations, sélectionnez des analyses "
                         "dans le projet, à gauche, et appuyez sur Ctrl+Entrée. F1 ouvre le guide."));
    for (int index = 0; index < m_tabs->count(); ++index) {
        if (QWidget* const button = m_tabs->tabBar()->tabButton(index, QTabBar::RightSide)) {
            button->setToolTip(tr("Close (Ctrl+F4)", "Fermer (Ctrl+F4)"));
        }
    }
}

void Workspace::showState() {
    setCurrentWidget(m_tabs->count() == 0 ? static_cast<QWidget*>(m_empty) : m_tabs);
}

void Workspace::bringToFront(QWidget* page) {
    m_tabs->setCurrentWidget(page);
    showState();
}

void Workspace::showEditor(QWidget* editor) {
    if (editor == nullptr) {
        return;
    }
    if (m_tabs->indexOf(editor) < 0) {
        m_tabs->insertTab(0, editor,
                          tabText(editor->windowTitle())); // without a button: it is its module's to close
        followTitle(editor);
    }
    if (auto* const plots = dynamic_cast<TechPlot::TEditor*>(editor)) {
        m_plots = plots;
        connect(plots, &TechPlot::TEditor::exported, this, &Workspace::curvesExported, Qt::UniqueConnection);
        emit curvesShown(plots);
    }
    bringToFront(editor);
}

void Workspace::closeEditor(QWidget* editor) {
    const int index = editor == nullptr ? -1 : m_tabs->indexOf(editor);
    if (index < 0) {
        return;
    }
    editor->disconnect(m_tabs);
    m_tabs->removeTab(index);
    editor->setParent(nullptr);
    showState();
}

void Workspace::arrangeViewers(int arrangement) {
    if (arrangement != column || m_plots == nullptr || m_tabs->indexOf(m_plots) < 0) {
        return;
    }
    bringToFront(m_plots);
    m_plots->adjustViewers();
}

void Workspace::addTable(std::unique_ptr<VKDataModel> model) {
    if (model == nullptr) {
        return;
    }
    auto* const view = new TableView(std::move(model));
    view->setWindowTitle(view->title());
    connect(view, &TableView::titleChanged, view, &QWidget::setWindowTitle);
    const VKDataModel* const table = view->model();
    connect(view, &TableView::exported, this,
            [this, table](const QString& path) { emit tableExported(table, path); });
    emit tableOpened(table);
    addPage(view);
}

void Workspace::addPage(QWidget* page) {
    addCloseButton(page, m_tabs->addTab(page, tabText(page->windowTitle())));
    followTitle(page);
    bringToFront(page);
}

bool Workspace::showPage(QWidget* page) {
    if (m_tabs->indexOf(page) < 0) {
        return false;
    }
    bringToFront(page);
    return true;
}

void Workspace::addCloseButton(QWidget* page, int index) {
    auto* const button = new TToolButton;
    button->setAutoRaise(true);
    button->setIcon(TLineIcon::icon(QStringLiteral("close")));
    button->setIconSize(QSize(closeIcon, closeIcon));
    button->setFocusPolicy(Qt::NoFocus); // Ctrl+F4 is the keyboard's way
    connect(button, &QToolButton::clicked, page, [this, page] { closeTab(m_tabs->indexOf(page)); });
    m_tabs->tabBar()->setTabButton(index, QTabBar::RightSide, button);
    translate();
}

QWidget* Workspace::currentPage() const {
    return m_tabs->currentWidget();
}

void Workspace::followTitle(QWidget* page) {
    connect(page, &QWidget::windowTitleChanged, m_tabs, [this, page](const QString& title) {
        m_tabs->setTabText(m_tabs->indexOf(page), tabText(title));
    });
}

void Workspace::closeTab(int index) {
    QWidget* const page = m_tabs->widget(index);
    // Only what was given to this object to keep.
    if (page == nullptr || dynamic_cast<TechPlot::TEditor*>(page) != nullptr) {
        return;
    }
    m_tabs->removeTab(index);
    page->deleteLater();
    showState();
}

void Workspace::closePage(QWidget* page) {
    closeTab(m_tabs->indexOf(page));
}

void Workspace::closePages() {
    for (int index = m_tabs->count() - 1; index >= 0; --index) {
        closeTab(index);
    }
}

void Workspace::refreshTables() {
    for (int index = 0; index < m_tabs->count(); ++index) {
        if (auto* const table = dynamic_cast<TableView*>(m_tabs->widget(index))) {
            table->refreshCells();
        }
    }
}
