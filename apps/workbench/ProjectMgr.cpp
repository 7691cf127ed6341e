#include "ProjectMgr.h"

#include "MessageLoggerInterface.h"
#include "TDatabase.h"
#include "VKDatabaseImport.h"
#include "VKError.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <utility>

namespace {

constexpr int mostRecent = 8;
const QString recentKey = QStringLiteral("projects/recent");

bool isSameFile(const QString& a, const QString& b) {
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
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
        const QFileInfo project(m_project->path());
        try {
            m_import = VKDatabaseImport::open(
                project.dir().filePath(project.completeBaseName() + QStringLiteral(".import")));
        } catch (const VKError& error) {
            // The importing module goes on to name the file that did not come in.
            MessageLoggerInterface::Error(error.text());
        }
    }
    return m_import.get();
}

void ProjectMgr::open(const QString& path) {
    if (m_project != nullptr && isSameFile(path, m_project->path())) {
        return;
    }
    std::unique_ptr<TechDB::TDatabase> project = TechDB::TDatabase::open(path);
    close();
    m_project = std::move(project);
    remember(path);
    emit opened(m_project.get());
}

void ProjectMgr::create(const QString& path) {
    create(path, [](TechDB::TDatabase&) {});
}

void ProjectMgr::create(const QString& path, const std::function<void(TechDB::TDatabase&)>& fill) {
    if (m_project != nullptr && isSameFile(path, m_project->path())) {
        throw VKError(tr("The project <b>%1</b> is open.", "Le projet <b>%1</b> est ouvert.")
                          .arg(QDir::toNativeSeparators(path).toHtmlEscaped()),
                      {},
                      tr("Choose another name for the new one.", "Choisissez un autre nom pour le nouveau."));
    }
    const QTemporaryDir folder;
    {
        const auto project = TechDB::TDatabase::create(folder.filePath(QStringLiteral("new.vornproj")));
        fill(*project);
        project->backupTo(path); // as a whole, and not onto a project that another window has open
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
        if (QFileInfo(path).isFile()) {
            there.append(path);
        }
    }
    return there;
}

void ProjectMgr::remember(const QString& path) {
    QSettings settings;
    QStringList recent = settings.value(recentKey).toStringList();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    recent.removeAll(absolute);
    recent.prepend(absolute);
    settings.setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
}
