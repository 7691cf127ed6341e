#include "ProjectCommands.h"

#include "ExampleProject.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncher.h"
#include "ProjectMgr.h"
#include "ServerAddress.h"
#include "SqlError.h"
#include "TDatabase.h"
#include "TInputsDialog.h"
#include "TLineIcon.h"
#include "TProgressBarMgr.h"
#include "VKError.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>

#include <algorithm>

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

constexpr int copyingSteps = 1000;

TechDB::CopyProgress shownIn(TProgressBarMgr& bar) {
    return [&bar](qint64 done, qint64 total) {
        bar.setProgress(static_cast<int>(copyingSteps * done / std::max<qint64>(total, 1)), true);
    };
}

} // namespace

ProjectCommands::ProjectCommands(ProjectMgr& projects, ModuleLauncher& launcher, QWidget& window)
    : m_projects(projects), m_launcher(launcher), m_window(window),
      m_new(new QAction(TLineIcon::icon(QStringLiteral("project_new")), {}, this)),
      m_open(new QAction(TLineIcon::icon(QStringLiteral("project_open")), {}, this)),
      m_server(new QAction(TLineIcon::icon(QStringLiteral("link_axes")), {}, this)),
      m_example(new QAction(TLineIcon::icon(QStringLiteral("project")), {}, this)),
      m_backup(new QAction(TLineIcon::icon(QStringLiteral("backup")), {}, this)),
      m_serverCopy(new QAction(TLineIcon::icon(QStringLiteral("send")), {}, this)),
      m_recent(new QMenu(&window)) {
    m_new->setShortcut(QKeySequence::New);
    m_open->setShortcut(QKeySequence::Open);
    m_backup->setEnabled(false);
    m_serverCopy->setEnabled(false);
    m_recent->setIcon(TLineIcon::icon(QStringLiteral("project_recent")));
    connect(m_new, &QAction::triggered, this, &ProjectCommands::askForNew);
    connect(m_open, &QAction::triggered, this, &ProjectCommands::askForOpen);
    connect(m_server, &QAction::triggered, this, &ProjectCommands::askForServer);
    connect(m_example, &QAction::triggered, this, &ProjectCommands::openExample);
    connect(m_backup, &QAction::triggered, this, &ProjectCommands::askForBackup);
    connect(m_recent, &QMenu::aboutToShow, this, &ProjectCommands::fillRecentMenu);
    connect(m_serverCopy, &QAction::triggered, this, &ProjectCommands::askForServerCopy);
    for (QAction* const copy : {m_backup, m_serverCopy}) {
        connect(&m_projects, &ProjectMgr::opened, copy,
                [copy](const TechDB::TDatabase* project) { copy->setEnabled(project != nullptr); });
    }
    translate();
}

ProjectCommands::~ProjectCommands() = default;

void ProjectCommands::translate() {
    m_new->setText(tr("New…", "Nouveau…"));
    m_new->setToolTip(tr("Make an empty project", "Créer un projet vide"));
    m_open->setText(tr("Open…", "Ouvrir…"));
    m_open->setToolTip(tr("Open another project", "Ouvrir un autre projet"));
    m_server->setText(tr("Open on a server…", "Ouvrir sur un serveur…"));
    m_server->setToolTip(tr("Open or make a project that several desks share",
                            "Ouvrir ou créer un projet que plusieurs postes partagent"));
    m_example->setText(tr("Example", "Exemple"));
    m_example->setToolTip(
        tr("Open the project with the example curves", "Ouvrir le projet des courbes d'exemple"));
    m_backup->setText(tr("Backup copy…", "Copie de sauvegarde…"));
    m_backup->setIconText(tr("Backup…", "Sauvegarde…"));
    m_backup->setToolTip(tr("Save a copy of the project", "Enregistrer une copie du projet"));
    m_serverCopy->setText(tr("Copy to a server…", "Copier vers un serveur…"));
    m_serverCopy->setToolTip(tr("Copy the project into an empty database that several desks share",
                                "Copier le projet dans une base vide que plusieurs postes partagent"));
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
    if (project != nullptr && !project->folder().isNull() && project->path() != examplePath()) {
        return project->folder();
    }
    // The example lies where nobody looks for files, and a server has no folder.
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

QString ProjectCommands::askForAddress(const QString& title) {
    const QString key = QStringLiteral("address");
    TInputsDialog dialog(title, &m_window);
    dialog.addTextInput(key, tr("Address", "Adresse"), {}, QLineEdit::Normal,
                        QStringLiteral("postgresql://user@host/database"));
    return dialog.exec() == 0 ? QString() : dialog.getTextIntput(key);
}

void ProjectCommands::askForServer() {
    const QString address = askForAddress(tr("Project on a server", "Projet sur un serveur"));
    if (address.isEmpty()) {
        return;
    }
    attempt([&] {
        const QString shownAddress = TechDB::ServerAddress(address).shown(); // refuses what is no address
        if (!m_launcher.closeAll()) {
            return;
        }
        try {
            m_projects.open(address);
        } catch (const TechDB::SqlError& error) {
            if (error.failure() != TechDB::SqlFailure::NotADatabase) {
                throw;
            }
            if (isNewWantedOn(shownAddress)) {
                m_projects.create(address);
            }
        }
    });
}

bool ProjectCommands::isNewWantedOn(const QString& address) const {
    const QString question =
        tr("The database <b>%1</b> holds no project yet. Make one in it?",
           "La base de données <b>%1</b> ne contient pas encore de projet. En créer un ?")
            .arg(address.toHtmlEscaped());
    return QMessageBox::question(&m_window, tr("Project on a server", "Projet sur un serveur"), question) ==
           QMessageBox::Yes;
}

void ProjectCommands::askForServerCopy() {
    const QString address = askForAddress(tr("Copy to a server", "Copie vers un serveur"));
    if (address.isEmpty()) {
        return;
    }
    attempt([&] {
        const QString shownAddress = TechDB::ServerAddress(address).shown();
        TProgressBarMgr bar(copyingSteps, tr("Copying the project", "Copie du projet"), true);
        m_projects.projectDatabase()->copyTo(address, shownIn(bar));
        MessageLoggerInterface::Information(
            tr("The project was copied to <b>%1</b> and compared with it; it can be opened there.",
               "Le projet a été copié vers <b>%1</b> et comparé ; il peut y être ouvert.")
                .arg(shownAddress.toHtmlEscaped()));
    });
}

void ProjectCommands::askForBackup() {
    const TechDB::TDatabase* const project = m_projects.projectDatabase();
    const QString proposed = QStringLiteral("%1/%2 %3.%4")
                                 .arg(folder(), project->title(), QDate::currentDate().toString(Qt::ISODate),
                                      ProjectMgr::fileSuffix());
    const QString path = QFileDialog::getSaveFileName(&m_window, tr("Backup copy", "Copie de sauvegarde"),
                                                      proposed, fileFilter());
    if (path.isEmpty()) {
        return;
    }
    const QString copy = withSuffix(path);
    attempt([&] {
        TProgressBarMgr bar(copyingSteps, tr("Copying the project", "Copie du projet"), true);
        project->backupTo(copy, shownIn(bar));
        MessageLoggerInterface::Information(tr("A copy of the project was saved as <b>%1</b>.",
                                               "Une copie du projet a été enregistrée : <b>%1</b>.")
                                                .arg(shown(copy)));
    });
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
