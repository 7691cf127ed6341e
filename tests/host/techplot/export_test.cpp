#include "PlotFixture.h"
#include "TExportCommand.h"
#include "TPlotExport.h"
#include "VKError.h"
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

using namespace TechPlot;

class Export : public PlotTest {
protected:
    Export() {
        for (VKViewer2DChroma& viewer : viewers) {
            VKPlotterSignal* line = signal({0, 500, 1000}, {0, 100, 0});
            line->getStyle()->setColorPen(Qt::red);
            viewer.insertPlotter(line);
            viewer.setName("a <b>curve</b> & more");
        }
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static int redPixels(const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y).red() > 200 && image.pixelColor(x, y).green() < 60 ? 1 : 0;
        }
        return count;
    }

    VKViewer2DChroma viewers[4];
};

TEST_F(Export, pictures_of_viewers_never_shown_are_valid_and_black_on_white) {
    TPlotExport::write({&viewers[0]}, path("light.png"));
    QPalette dark = viewers[0].palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    viewers[0].setPalette(dark);
    TPlotExport::write({&viewers[0]}, path("one.png"));
    TPlotExport::write({&viewers[0], &viewers[1]}, path("two.PNG"));
    const QImage one(path("one.png"));
    const QImage two(path("two.PNG"));
    EXPECT_EQ(one, QImage(path("light.png")));
    EXPECT_EQ(one.size(), QSize(2000, 720));
    EXPECT_EQ(two.size(), QSize(2000, 1440));
    EXPECT_EQ(one.pixelColor(1000, 700), QColor(Qt::white));
    EXPECT_GT(redPixels(one), 2000);
    EXPECT_NEAR(redPixels(two), 2 * redPixels(one), 200);

    viewers[0].showPart(QRectF(0, 0, 100, 10));
    TPlotExport::write({&viewers[0]}, path("part.png"));
    EXPECT_NE(QImage(path("part.png")), one) << "what is shown is what is written";

    TPlotExport::write({&viewers[1]}, path("one.svg"));
    QSvgRenderer drawing(path("one.svg"));
    ASSERT_TRUE(drawing.isValid());
    QImage drawn(drawing.defaultSize(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    drawing.render(&painter);
    painter.end();
    EXPECT_GT(redPixels(drawn), 300);
    EXPECT_FALSE(content("one.svg").contains("<b>")) << "a name is text, not markup";
}

TEST_F(Export, a_document_has_a_page_for_each_three_viewers) {
    TPlotExport::write({&viewers[0], &viewers[1], &viewers[2], &viewers[3]}, path("all.pdf"));
    const QByteArray document = content("all.pdf");
    EXPECT_TRUE(document.startsWith("%PDF-"));
    EXPECT_TRUE(document.trimmed().endsWith("%%EOF"));
    EXPECT_EQ(document.count("/Type /Page\n"), 2);
}

TEST_F(Export, what_cannot_be_written_is_said_and_leaves_the_old_file_whole) {
    EXPECT_THROW(TPlotExport::write({}, path("none.png")), VKError);
    EXPECT_THROW(TPlotExport::write({&viewers[0]}, path("odd.bmp")), VKError);
    EXPECT_THROW(TPlotExport::write({&viewers[0]}, path("missing/one.png")), VKError);
    EXPECT_THROW(TPlotExport::write({&viewers[0]}, folder.path() + "/."), VKError);
    const QVector<const VKViewer2D*> many(TPlotExport::mostInPicture + 1, &viewers[0]);
    EXPECT_THROW(TPlotExport::write(many, path("many.svg")), VKError);
    EXPECT_FALSE(QFile::exists(path("many.svg")));
    TPlotExport::write(many, path("many.pdf"));
    EXPECT_EQ(content("many.pdf").count("/Type /Page\n"), 14);
}

TEST_F(Export, file_names_are_made_of_names_without_what_folders_stumble_over) {
    EXPECT_EQ(TExportCommand::fileNameFor("A/B: 14\\7 <2>"), "A_B_ 14_7 _2_");
    EXPECT_EQ(TExportCommand::fileNameFor("../../.hidden"), "_.._.hidden");
    EXPECT_EQ(TExportCommand::fileNameFor(" . "), "curves");
    EXPECT_EQ(TExportCommand::fileNameFor(QString(1000, 'x')).size(), 100);
}
