#include "ProjectCommands.h"

#include "ExampleProject.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncher.h"
#include "ProjectMgr.h"
#include "TDatabase.h"
#include "TLineIcon.h"
#include "VKError.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QStandardPaths>

namespace {

QString withSuffix(const QString& path) {
    const QString suffix = QLatin1Char('.') + ProjectMgr::fileSuffix();
    return path.endsWith(suffix, Qt::CaseInsensitive) ? path : path + suffix;
}

QString examplePath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return withSuffix(QDir(folder).filePath(QStringLiteral("Example")));
}

QString shown(const QString& path) {
    return QDir::toNativeSeparators(path).toHtmlEscaped();
}

} // namespace

ProjectCommands::ProjectCommands(ProjectMgr& projects, ModuleLauncher& launcher, QWidget& window)
    : m_projects(projects), m_launcher(launcher), m_window(window),
      m_new(new QAction(TLineIcon::icon(QStringLiteral("project_new")), {}, this)),
      m_open(new QAction(TLineIcon::icon(QStringLiteral("project_open")), {}, this)),
      m_example(new QAction(TLineIcon::icon(QStringLiteral("project")), {}, this)),
      m_backup(new QAction(TLineIcon::icon(QStringLiteral("backup")), {}, this)),
      m_recent(new QMenu(&window)) {
    m_new->setShortcut(QKeySequence::New);
    m_open->setShortcut(QKeySequence::Open);
    m_backup->setEnabled(false);
    m_recent->setIcon(TLineIcon::icon(QStringLiteral("project_recent")));
    connect(m_new, &QAction::triggered, this, &ProjectCommands::askForNew);
    connect(m_open, &QAction::triggered, this, &ProjectCommands::askForOpen);
    connect(m_example, &QAction::triggered, this, &ProjectCommands::openExample);
    connect(m_backup, &QAction::triggered, this, &ProjectCommands::askForBackup);
    connect(m_recent, &QMenu::aboutToShow, this, &ProjectCommands::fillRecentMenu);
    connect(&m_projects, &ProjectMgr::opened, m_backup,
            [this](const TechDB::TDatabase* project) { m_backup->setEnabled(project != nullptr); });
    translate();
}

ProjectCommands::~ProjectCommands() = default;

void ProjectCommands::translate() {
    m_new->setText(tr("New…", "Nouveau…"));
    m_new->setToolTip(tr("Make an empty project", "Créer un projet vide"));
    m_open->setText(tr("Open…", "Ouvrir…"));
    m_open->setToolTip(tr("Open another project", "Ouvrir un autre projet"));
    m_example->setText(tr("Example", "Exemple"));
    m_example->setToolTip(
        tr("Open the project with the example curves", "Ouvrir le projet des courbes d'exemple"));
    m_backup->setText(tr("Backup copy…", "Copie de sauvegarde…"));
    m_backup->setToolTip(tr("Save a copy of the project", "Enregistrer une copie du projet"));
    m_recent->setTitle(tr("Recent", "Récents"));
}

template <class Operation>
bool ProjectCommands::attempt(Operation operation) {
    try {
        operation();
        return true;
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return false;
    }
}

QString ProjectCommands::fileFilter() const {
    return tr("Projects (*.%1)", "Projets (*.%1)").arg(ProjectMgr::fileSuffix());
}

QString ProjectCommands::folder() const {
    const TechDB::TDatabase* const project = m_projects.projectDatabase();
    if (project != nullptr && project->path() != examplePath()) {
        return QFileInfo(project->path()).absolutePath();
    }
    // The example lies where nobody looks for files.
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

void ProjectCommands::openAtStart() {
    const QStringList recent = ProjectMgr::recentProjects();
    if (recent.isEmpty() || !attempt([&] { m_projects.open(recent.first()); })) {
        openExample();
    }
}

void ProjectCommands::openProject(const QString& path) {
    attempt([&] {
        if (m_launcher.closeAll()) {
            m_projects.open(path);
        }
    });
}

void ProjectCommands::openExample() {
    const QString path = examplePath();
    attempt([&] {
        if (!m_launcher.closeAll()) {
            return;
        }
        if (QFileInfo::exists(path)) {
            m_projects.open(path);
        } else {
            m_projects.create(path, &ExampleProject::fill);
        }
    });
}

void ProjectCommands::askForNew() {
    const QString path =
        QFileDialog::getSaveFileName(&m_window, tr("New project", "Nouveau projet"), folder(), fileFilter());
    if (path.isEmpty()) {
        return;
    }
    attempt([&] {
        if (m_launcher.closeAll()) {
            m_projects.create(withSuffix(path));
        }
    });
}

void ProjectCommands::askForOpen() {
    const QString path = QFileDialog::getOpenFileName(&m_window, tr("Open project", "Ouvrir un projet"),
                                                      folder(), fileFilter());
    if (!path.isEmpty()) {
        openProject(path);
    }
}

void ProjectCommands::askForBackup() {
    const TechDB::TDatabase* const project = m_projects.projectDatabase();
    const QFileInfo file(project->path());
    const QString proposed = QStringLiteral("%1/%2 %3.%4")
                                 .arg(folder(), file.completeBaseName(),
                                      QDate::currentDate().toString(Qt::ISODate), ProjectMgr::fileSuffix());
    const QString path = QFileDialog::getSaveFileName(&m_window, tr("Backup copy", "Copie de sauvegarde"),
                                                      proposed, fileFilter());
    if (path.isEmpty()) {
        return;
    }
    const QString copy = withSuffix(path);
    if (attempt([&] { project->backupTo(copy); })) {
        MessageLoggerInterface::Information(tr("A copy of the project was saved as <b>%1</b>.",
                                               "Une copie du projet a été enregistrée : <b>%1</b>.")
                                                .arg(shown(copy)));
    }
}

void ProjectCommands::fillRecentMenu() {
    m_recent->clear();
    const QStringList recent = ProjectMgr::recentProjects();
    for (const QString& path : recent) {
        QString text = QDir::toNativeSeparators(path);
        const QAction* const entry = m_recent->addAction(text.replace('&', "&&"));
        connect(entry, &QAction::triggered, this, [this, path] { openProject(path); });
    }
    if (recent.isEmpty()) {
        m_recent->addAction(tr("No project was opened yet", "Aucun projet n'a encore été ouvert"))
            ->setEnabled(false);
    }
}
