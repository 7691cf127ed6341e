#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace TechPlot {

/// What stands as a sentence under the titles of an editor's viewers. A module makes its viewers and knows
/// nothing of notes; whoever has something to say about what they show says it here, by the viewer's name. A
/// viewer asks when it is on screen, so one that nobody looks at costs nothing.
class TViewerNotes : public QObject {
    Q_OBJECT

public:
    /// Plain text for the viewer of that name; empty for one that there is nothing to say about.
    using Source = std::function<QString(const QString& viewerName)>;

    /// In place of the source before; an empty one has nothing to say. Viewers ask again.
    void setSource(Source source);
    QString note(const QString& viewerName) const;

    /// What the source says has changed: viewers ask again.
    void refresh() { emit changed(); }

signals:
    void changed();

private:
    Source m_source;
};

} // namespace TechPlot
