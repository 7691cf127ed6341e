#include "PictureFolder.h"

#include "TPlotExport.h"
#include "VKError.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPixmap>
#include <QWidget>

#include <iostream>

namespace {

void tell(const QString& path) {
    std::cout << "Written: " << path.toStdString() << '\n';
}

} // namespace

PictureFolder::PictureFolder(const QString& path) : m_folder(path) {
    QDir().mkpath(path); // if it can't be made, the first picture can't be written
}

void PictureFolder::write(const QString& name, QWidget& widget) const {
    const QString path = filePath(name);
    if (!widget.grab().save(path)) {
        throw VKError(QCoreApplication::translate(
                          "PictureFolder",
                          "The picture <b>%1</b> can't be written: check that its folder may be written.",
                          "L'image <b>%1</b> ne peut pas être écrite : vérifiez que son dossier peut l'être.")
                          .arg(path.toHtmlEscaped()));
    }
    tell(path);
}

void PictureFolder::write(const QString& name, const QVector<const TechPlot::VKViewer2D*>& plots) const {
    const QString path = filePath(name);
    TechPlot::TPlotExport::write(plots, path);
    tell(path);
}

void PictureFolder::settle() {
    for (int pass = 0; pass < 3; ++pass) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}
