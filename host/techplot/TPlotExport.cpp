#include "TPlotExport.h"

#include "TPlotColors.h"
#include "TPlotWidget.h"
#include "VKError.h"
#include "VKViewer2D.h"
#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <qwt_plot_renderer.h>

namespace TechPlot {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TechPlot::TPlotExport)
};

using Viewers = QVector<const VKViewer2D*>;

constexpr int pictureWidth = 1000;
constexpr int pictureHeight = 360;
constexpr double pixelRatio = 2.0;
constexpr int pdfResolution = 300;
constexpr int rowsOnPage = 3;
constexpr double pdfGap = 40;
constexpr int inset = 8;

void draw(QPainter& painter, const VKViewer2D& viewer, const QRectF& area) {
    const auto picture = viewer.makePicture(TPlotColors::paper());
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasBackground);
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasFrame);
    renderer.render(picture.get(), &painter, area);
}

void drawColumn(QPainter& painter, const Viewers& viewers) {
    painter.fillRect(QRect(0, 0, pictureWidth, pictureHeight * viewers.size()), Qt::white);
    QRectF row(inset, inset, pictureWidth - 2 * inset, pictureHeight - 2 * inset);
    for (const VKViewer2D* viewer : viewers) {
        draw(painter, *viewer, row);
        row.translate(0, pictureHeight);
    }
}

QByteArray png(const Viewers& viewers) {
    QImage image(QSize(pictureWidth, pictureHeight * viewers.size()) * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    QPainter painter(&image);
    drawColumn(painter, viewers);
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray svg(const Viewers& viewers, const QString& title) {
    QBuffer buffer;
    const QRect area(0, 0, pictureWidth, pictureHeight * viewers.size());
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(area.size());
    generator.setViewBox(area);
    generator.setTitle(title.toHtmlEscaped());
    QPainter painter(&generator);
    drawColumn(painter, viewers);
    painter.end();
    return buffer.data();
}

QByteArray pdf(const Viewers& viewers, const QString& title) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    const bool single = viewers.size() == 1;
    writer.setTitle(title);
    writer.setResolution(pdfResolution);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                     single ? QPageLayout::Landscape : QPageLayout::Portrait,
                                     QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
    QPainter painter(&writer);
    const int rows = single ? 1 : rowsOnPage;
    const QRectF first(0, 0, writer.width(), static_cast<double>(writer.height()) / rows);
    for (int i = 0; i < viewers.size(); ++i) {
        if (i > 0 && i % rows == 0)
            writer.newPage();
        const QRectF row = first.translated(0, first.height() * (i % rows));
        draw(painter, *viewers.at(i), row.adjusted(0, pdfGap, 0, -pdfGap));
    }
    painter.end();
    return buffer.data();
}

QByteArray encode(const Viewers& viewers, const QFileInfo& file) {
    const QString form = file.suffix().toLower();
    const QString title = viewers.size() == 1 ? viewers.first()->name() : file.completeBaseName();
    if (form == QLatin1String("pdf"))
        return pdf(viewers, title);
    if (form != QLatin1String("png") && form != QLatin1String("svg")) {
        throw VKError(
            Texts::tr("The picture has no known form.", "Le format de l'image est inconnu."),
            file.fileName().toHtmlEscaped(),
            Texts::tr("End the name in .png, .svg or .pdf.", "Terminez le nom par .png, .svg ou .pdf."));
    }
    if (viewers.size() > TPlotExport::mostInPicture) {
        throw VKError(
            Texts::tr("%1 curves are too many for one picture.", "%1 courbes sont trop pour une image.")
                .arg(viewers.size()),
            file.fileName().toHtmlEscaped(),
            Texts::tr("Save them as PDF, or select up to %1.",
                      "Enregistrez-les en PDF, ou sélectionnez-en au plus %1.")
                .arg(TPlotExport::mostInPicture));
    }
    return form == QLatin1String("png") ? png(viewers) : svg(viewers, title);
}

} // namespace

void TPlotExport::write(const QVector<const VKViewer2D*>& viewers, const QString& fileName) {
    if (viewers.isEmpty()) {
        throw VKError(Texts::tr(
            "There is no curve to save: select one in the module's list first.",
            "Il n'y a pas de courbe à enregistrer : sélectionnez-en d'abord une dans la liste du module."));
    }
    const QByteArray content = encode(viewers, QFileInfo(fileName));
    QSaveFile file(fileName);
    if (!content.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
        file.commit())
        return;
    throw VKError(Texts::tr("The picture could not be written.", "L'image n'a pas pu être écrite."),
                  QStringLiteral("%1: %2").arg(fileName.toHtmlEscaped(), file.errorString().toHtmlEscaped()),
                  Texts::tr("Choose another folder or free some space.",
                            "Choisissez un autre dossier ou libérez de l'espace."));
}

} // namespace TechPlot
