#include "TLineIcon.h"
#include "TavrelColors.h"
#include "TavrelDrawing.h"
#include "TavrelStyle.h"

#include <QApplication>
#include <QDirIterator>
#include <QImageReader>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool shows(const QIcon& icon, const QColor& colour, QIcon::Mode mode = QIcon::Normal) {
    const QImage image = icon.pixmap(QSize(48, 48), mode).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(Colors, texts_can_be_read_on_light_and_dark) {
    for (const bool dark : {false, true}) {
        const QPalette palette = TavrelColors::palette(dark);
        EXPECT_EQ(TavrelColors::isDark(palette), dark);
        for (const auto behind : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            const QColor ground = palette.color(behind);
            EXPECT_GE(contrast(palette.color(QPalette::Text), ground), 7) << dark << behind;
            EXPECT_GE(contrast(TavrelColors::caption(palette), ground), 4.5) << dark << behind;
            EXPECT_GE(contrast(TavrelColors::accent(palette), ground), 4.5) << dark << behind;
        }
        EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
                  4.5);
    }
}

TEST(Style, it_follows_the_desktops_palette_unless_told) {
    const QPalette desktop(QColor("#202020"));
    QPalette palette = desktop;
    TavrelStyle().polish(palette);
    EXPECT_TRUE(TavrelColors::isDark(palette));
    palette = desktop;
    TavrelStyle(TavrelStyle::Scheme::Light).polish(palette);
    EXPECT_FALSE(TavrelColors::isDark(palette));
}

TEST(Style, item_texts_stay_readable_on_the_items_own_background) {
    QStyleOptionViewItem item;
    for (const char* colour : {"lime", "orange", "red", "green", "navy"}) {
        item.backgroundBrush = QColor(colour);
        const QColor text = TavrelDrawing::readable(item).palette.color(QPalette::HighlightedText);
        EXPECT_GE(contrast(text, QColor(colour)), 4.5) << colour;
    }
}

TEST(Style, a_header_as_low_as_a_row_shows_its_text_whole) {
    QStyleOptionHeader header;
    header.rect = QRect(0, 0, 60, 24);
    EXPECT_EQ(TavrelStyle().subElementRect(QStyle::SE_HeaderLabel, &header, nullptr), QRect(8, 0, 44, 24));
}

TEST(Resources, the_pictures_that_modules_name_are_there) {
    for (const QString name :
         {"modules/vorn_2015/Vorn_SourceRock_QAQC", "modules/vorn_2015/Vorn_SourceRock_Import",
          "modules/vorn_2015/Vorn_CustomImport", "modules/vorn_2015/Vorn_Isotopes", "toolbar/blue_plus",
          "toolbar/close_project", "workflow/action_32", "toolbar/delete_generic", "toolbar/launch"}) {
        EXPECT_FALSE(QPixmap(":/Ressources/png/" + name + ".png").isNull()) << qPrintable(name);
    }
    EXPECT_FALSE(QIcon(":Ressources/png/toolbar/delete_generic.png").pixmap(16, 16).isNull());
}

TEST(Resources, every_drawing_has_its_picture_at_twice_the_size) {
    int drawings = 0;
    for (QDirIterator it(":/Ressources/svg", {"*.svg"}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        QString path = it.next();
        const QSize size = QSvgRenderer(path).defaultSize();
        const QString picture = path.replace("/svg/", "/png/").replace(".svg", ".png");
        EXPECT_EQ(QImageReader(picture).size(), 2 * size) << picture.toStdString();
        ++drawings;
    }
    EXPECT_GT(drawings, 40);
}

TEST(LineIcon, its_colours_are_the_palettes) {
    const QPalette before = QApplication::palette();
    const QIcon icon = TLineIcon::icon("table");
    for (const bool dark : {false, true}) {
        const QPalette palette = TavrelColors::palette(dark);
        QApplication::setPalette(palette);
        EXPECT_TRUE(shows(icon, palette.color(QPalette::WindowText)));
        EXPECT_TRUE(shows(icon, TavrelColors::accent(palette)));
        EXPECT_FALSE(shows(icon, TavrelColors::accent(palette), QIcon::Disabled));
    }
    QApplication::setPalette(before);
    EXPECT_FALSE(TLineIcon::icon("modules/vorn_2015/Vorn_Isotopes").isNull());
    EXPECT_TRUE(TLineIcon::icon("no such drawing").isNull());
}
