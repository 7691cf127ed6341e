#include "FolderWalk.h"

#include "NaturalOrder.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace {

QFileInfoList entriesOf(const QString& folder) {
    QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    const QCollator collator = NaturalOrder::collator();
    std::sort(entries.begin(), entries.end(), [&collator](const QFileInfo& one, const QFileInfo& other) {
        return collator.compare(one.fileName(), other.fileName()) < 0;
    });
    return entries;
}

} // namespace

FolderWalk::FolderWalk(const QStringList& dropped, int limit) : m_limit(limit) {
    for (const QString& path : dropped) {
        take(QFileInfo(QDir::cleanPath(QFileInfo(path).absoluteFilePath())), true);
        while (!m_waiting.isEmpty()) {
            take(m_waiting.takeLast(), false);
        }
    }
}

void FolderWalk::take(const QFileInfo& entry, bool wasDropped) {
    const QString path = entry.absoluteFilePath();
    if (m_isFull || m_known.contains(path)) {
        return;
    }
    if (m_files.size() >= m_limit) {
        m_isFull = true;
        refuse(path, tr("%1 files were found before it, and neither it nor what follows was looked at; drop "
                        "fewer files at once",
                        "%1 fichiers ont été trouvés avant lui ; lui et la suite n'ont pas été examinés ; "
                        "déposez moins de fichiers à la fois")
                         .arg(m_limit));
        return;
    }
    m_known.insert(path);
    if (!entry.isDir()) {
        m_files.append(path);
    } else if (entry.isSymLink() && !wasDropped) {
        refuse(path, tr("it is a link to a folder and was not followed; drop that folder itself",
                        "c'est un lien vers un dossier, qui n'a pas été suivi ; déposez ce dossier "
                        "lui-même"));
    } else {
        open(path);
    }
}

void FolderWalk::open(const QString& folder) {
    if (!QFileInfo(folder).isReadable() || !QFileInfo(folder).isExecutable()) {
        refuse(folder, tr("the folder can't be read; check your right to read it",
                          "le dossier ne peut pas être lu ; vérifiez votre droit de le lire"));
        return;
    }
    const QFileInfoList entries = entriesOf(folder);
    std::copy(entries.crbegin(), entries.crend(), std::back_inserter(m_waiting));
    if (entries.isEmpty()) {
        refuse(folder, tr("the folder is empty; drop one that holds files",
                          "le dossier est vide ; déposez-en un qui contient des fichiers"));
    }
}

void FolderWalk::refuse(const QString& path, const QString& reason) {
    m_refused.append(SortedFile{path, FileKind::Unknown, reason});
}
