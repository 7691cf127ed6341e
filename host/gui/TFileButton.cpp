#include "TFileButton.h"

#include "TLineIcon.h"
#include "TLocalFiles.h"

#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

TFileButton::TFileButton(QWidget* parent) : TToolButton(parent) {
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIcon(TLineIcon::icon("project_open"));
    retranslate();
    connect(this, &QToolButton::clicked, this, &TFileButton::ask);
}

void TFileButton::ask() {
    const QPointer<TFileButton> alive(this); // the dialog runs an event loop
    const QStringList paths = QFileDialog::getOpenFileNames(
        window(), tr("Choose files", "Choisir des fichiers"), TLocalFiles::lastFolder());
    if (paths.isEmpty() || alive.isNull()) {
        return;
    }
    TLocalFiles::rememberFolder(QFileInfo(paths.first()).absolutePath());
    emit chosen(paths);
}

void TFileButton::retranslate() {
    setText(tr("Choose files…", "Choisir des fichiers…"));
}

void TFileButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    TToolButton::changeEvent(event);
}
