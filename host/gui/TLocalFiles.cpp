#include "TLocalFiles.h"

#include <QDir>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

namespace {

QString folderKey() {
    return QStringLiteral("gui/filesFolder");
}

} // namespace

QStringList TLocalFiles::of(const QMimeData* data) {
    QStringList paths;
    const QList<QUrl> urls = data == nullptr ? QList<QUrl>() : data->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

QString TLocalFiles::lastFolder() {
    return QSettings().value(folderKey(), QDir::homePath()).toString();
}

void TLocalFiles::rememberFolder(const QString& folder) {
    QSettings().setValue(folderKey(), folder);
}
