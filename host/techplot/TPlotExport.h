#pragma once

#include <QString>
#include <QVector>

namespace TechPlot {

class VKViewer2D;

/// Writes what viewers show, in the part of the axes they show, to a file: black on white, with the
/// viewers' names as headings, one below the other.
///
/// The end of the file's name chooses the form: .png (two pixels for each of the screen's), .svg or .pdf
/// (A4: one viewer lies across the page, several stand three to a page). The file appears whole or not at
/// all. Throws VKError if there is nothing to write, the form is unknown, a picture would be too high for
/// its form, or the file can't be written.
class TPlotExport {
public:
    static void write(const QVector<const VKViewer2D*>& viewers, const QString& fileName);

    /// The most viewers that one .png or .svg takes; .pdf takes any number.
    static constexpr int mostInPicture = 40;
};

} // namespace TechPlot
