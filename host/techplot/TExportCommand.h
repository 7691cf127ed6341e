#pragma once

#include <QString>
#include <QVector>

class QWidget;

namespace TechPlot {

class VKViewer2D;

/// Asks for a file and saves viewers into it; success and failure go to the user's log.
class TExportCommand {
public:
    /// `name` is what the file is called if the user leaves it at that; empty for several viewers.
    static void run(const QVector<const VKViewer2D*>& viewers, const QString& name, QWidget* parent);

    /// `name` without what file systems and their users stumble over; never empty.
    static QString fileNameFor(const QString& name);
};

} // namespace TechPlot
