#pragma once

#include <QString>
#include <QVector>

class QWidget;

namespace TechPlot {

class VKViewer2D;

/// Asks for a file and saves viewers into it; success and failure go to the user's log.
class TExportCommand {
public:
    /// `name` is what the file is called if the user leaves it at that; empty for several viewers. Gives the
    /// path of the file; null if there is none. The parent may be gone by then: the dialog lets events pass.
    static QString run(const QVector<const VKViewer2D*>& viewers, const QString& name, QWidget* parent);

    /// `name` without what file systems and their users stumble over; never empty.
    static QString fileNameFor(const QString& name);
};

} // namespace TechPlot
