#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

namespace TechPlot {

class TViewer2DEmitterConnect;
class TViewerNote;
class TViewerNotes;
class TViewerTitle;

/// Base of what an editor holds: a framed widget with a title, a close button, a body and, where there is
/// something to say, a note.
///
/// It is made with nothing inside and builds title and body when it is shown for the first time, so that
/// a thousand viewers of which three are seen cost little more than three. An editor owns the viewers
/// inserted into it; before that a viewer belongs to its maker.
class TViewer : public QWidget {
    Q_OBJECT

public:
    explicit TViewer(QWidget* parent = nullptr);
    ~TViewer() override;

    /// Plain text; what looks like markup is shown as it is written.
    void setName(const QString& name);
    const QString& name() const { return m_name; }

    /// Whether the close button ends the viewer itself. If not, it only asks, through the emitter. True at
    /// first.
    void setDeletable(bool deletable) { m_deletable = deletable; }
    bool isDeletable() const { return m_deletable; }

    TViewer2DEmitterConnect* getEmitor() { return m_emitter; }

    /// What the close button does: tells the emitter's listeners, and then disposes of a deletable viewer
    /// later than the running event. While the listeners are told, it does nothing.
    void requestClose();

    /// Where the sentence under the title comes from; null for nowhere. The viewer forgets one that ends.
    void setNotes(const TViewerNotes* notes);

    /// The sentence under the title (see TViewerNotes) as it was when the viewer was last on screen.
    QString note() const;

    /// Whether title and body have been built.
    bool isBuilt() const { return m_title != nullptr; }

    /// The place in the order in which viewers and plotters were made.
    quint64 serial() const { return m_serial; }

signals:
    /// The user asked for a picture of the viewer.
    void exportRequested();

protected:
    /// Makes the body, a child of the viewer, when the viewer is first shown.
    virtual QWidget* makeBody() = 0;

    /// Shows a short text at the right of the title.
    void setReadout(const QString& text);

    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build();
    void askForNote();
    void followFocus(const QWidget* old, const QWidget* now);

    QString m_name;
    TViewer2DEmitterConnect* m_emitter;
    TViewerTitle* m_title = nullptr;
    TViewerNote* m_note = nullptr;
    QPointer<const TViewerNotes> m_notes;
    quint64 m_serial;
    QMetaObject::Connection m_focus;
    bool m_deletable = true;
    bool m_closing = false;
};

} // namespace TechPlot
