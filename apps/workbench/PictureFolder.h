#pragma once

#include <QDir>
#include <QVector>

class QWidget;

namespace TechPlot {
class VKViewer2D;
}

/// Where a run without a screen leaves its pictures; prints the path of each. What can't be written is thrown
/// as VKError.
class PictureFolder {
public:
    explicit PictureFolder(const QString& path);

    QString filePath(const QString& name) const { return m_folder.filePath(name); }

    /// The widget as it stands.
    void write(const QString& name, QWidget& widget) const;
    void write(const QString& name, const QVector<const TechPlot::VKViewer2D*>& plots) const;

    /// Lets what waits for the event loop happen.
    static void settle();

private:
    QDir m_folder;
};
