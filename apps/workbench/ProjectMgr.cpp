#include "ProjectMgr.h"

#include "MessageLoggerInterface.h"
#include "ServerAddress.h"
#include "TDatabase.h"
#include "VKDatabaseImport.h"
#include "VKError.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <utility>

using TechDB::ServerAddress;

namespace {

constexpr int mostRecent = 8;
const QString recentKey = QStringLiteral("projects/recent");

bool isSame(const QString& a, const QString& b) {
    if (ServerAddress::isAddress(a)) {
        return ServerAddress(a).shown() == b;
    }
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

/// Beside a project's file. For a project on a server it is on this desk, where its files are imported.
QString importFolder(const TechDB::TDatabase& project) {
    const QString end = QStringLiteral(".import");
    if (!project.folder().isNull()) {
        return QDir(project.folder()).filePath(project.title() + end);
    }
    const QDir own(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return own.filePath(QStringLiteral("server/") + project.projectId() + end);
}

} // namespace

ProjectMgr::ProjectMgr() = default;

ProjectMgr::~ProjectMgr() {
    close();
}

TechDB::TDatabase* ProjectMgr::projectDatabase() const {
    return m_project.get();
}

VKDatabaseImport* ProjectMgr::importDatabase() const {
    if (m_import == nullptr && m_project != nullptr) {
        try {
            m_import = VKDatabaseImport::open(importFolder(*m_project));
        } catch (const VKError& error) {
            // The importing module goes on to name the file that did not come in.
            MessageLoggerInterface::Error(error.text());
        }
    }
    return m_import.get();
}

void ProjectMgr::open(const QString& path) {
    if (m_project != nullptr && isSame(path, m_project->path())) {
        return;
    }
    std::unique_ptr<TechDB::TDatabase> project = TechDB::TDatabase::open(path);
    close();
    m_project = std::move(project);
    m_project->followOthers();
    remember(m_project->path());
    emit opened(m_project.get());
}

void ProjectMgr::create(const QString& path) {
    create(path, [](TechDB::TDatabase&) {});
}

void ProjectMgr::create(const QString& path, const std::function<void(TechDB::TDatabase&)>& fill) {
    if (m_project != nullptr && isSame(path, m_project->path())) {
        throw VKError(tr("The project <b>%1</b> is open.", "Le projet <b>%1</b> est ouvert.")
                          .arg(QDir::toNativeSeparators(path).toHtmlEscaped()),
                      {},
                      tr("Choose another name for the new one.", "Choisissez un autre nom pour le nouveau."));
    }
    if (ServerAddress::isAddress(path)) {
        fill(*TechDB::TDatabase::create(path));
        open(path);
        return;
    }
    const QTemporaryDir folder;
    {
        const auto project = TechDB::TDatabase::create(folder.filePath(QStringLiteral("new.vornproj")));
        fill(*project);
        project->backupTo(
            path, [](qint64, qint64) {}); // as a whole, and not onto a project that another window has open
    }
    open(path);
}

void ProjectMgr::close() {
    if (m_project == nullptr) {
        return;
    }
    emit closing();
    m_import.reset();
    m_project.reset();
    emit opened(nullptr);
}

QStringList ProjectMgr::recentProjects() {
    QStringList there;
    const QStringList all = QSettings().value(recentKey).toStringList();
    for (const QString& path : all) {
        const bool isFile = !path.contains(QChar::Null) && QFileInfo(path).isFile();
        if (ServerAddress::isAddress(path) || isFile) {
            there.append(path);
        }
    }
    return there;
}

void ProjectMgr::remember(const QString& path) {
    QSettings settings;
    QStringList recent = settings.value(recentKey).toStringList();
    const QString absolute = ServerAddress::isAddress(path) ? path : QFileInfo(path).absoluteFilePath();
    recent.removeAll(absolute);
    recent.prepend(absolute);
    settings.setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
}
