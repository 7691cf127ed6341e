#pragma once

#include "VKModuleMgr.h"

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;

namespace TechPlot {
class TEditor;
class TNode;
class VKViewer2D;
} // namespace TechPlot

/// A module's side of its viewers: hears what the user does on the viewers it is connected to, and offers
/// an operation for each. What is said to do nothing here is for a module to fill in.
///
/// Events are only listened to: the viewer handles them afterwards as if nobody had. The operations may
/// close viewers in the host's way, which is later than the running event. Viewers may go at any time.
/// A viewer's closing is heard by those who connect its emitter to `slotViewerClosed`.
class VKModuleViewerMgr : public QObject, public VKModuleMgr {
    Q_OBJECT

public:
    VKModuleViewerMgr();
    ~VKModuleViewerMgr() override;

    /// While read-only, which no manager is at first, nothing that edits is called.
    virtual void setReadOnly(bool readOnly);

    /// Hears all of a viewer: looking and editing. False for null.
    virtual bool connectToViewer(TechPlot::VKViewer2D* viewer);

    /// Hears nothing more of a viewer; one that is not connected, or null, is ignored.
    virtual void disconnectFromViewer(TechPlot::VKViewer2D* viewer);

    /// Hears the keys that none of the editor's viewers took. False for null.
    virtual bool connectToEditor(TechPlot::TEditor* editor);

    /// Hears of a viewer what does not edit: selection, double click, keys. False for null. The later of
    /// this and `connectToViewer` holds.
    bool connectToViewerConst(TechPlot::VKViewer2D* viewer);

    /// The viewer that was pressed last; null if there is none or it is gone.
    QWidget* selectedViewer() const { return m_selected.data(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /// An action that the module put on its viewers was triggered; nothing here.
    virtual void slotUserAction(int action);
    /// The module found a plotter under a double click; nothing here.
    virtual void slotDoubleClickOnPlotter(TechPlot::TNode* plotter);
    /// The left button was pressed twice; nothing here.
    virtual void slotDoubleClick(QWidget* viewer);
    /// Editing, by the Insert key; nothing here.
    virtual void slotAdd();
    /// Editing: moved, in the viewer's coordinates, with the left button held; nothing here.
    virtual void slotMove(const QPoint& position);
    /// Editing, by the Delete key; nothing here.
    virtual void slotDelete();
    /// Editing: the left button was pressed; nothing here.
    virtual void slotSelect(const QPoint& position);
    /// Editing: the left button was let go; nothing here.
    virtual void slotRelease(const QPoint& position);
    /// Settings that the module's viewers share were changed; nothing here.
    virtual void slotMgrPropertyUpdate();
    /// The left button was pressed on a viewer: remembers it.
    virtual void slotSelectViewer(QWidget* viewer);
    /// The user closed a viewer; nothing here.
    virtual void slotViewerClosed();
    /// A key without a meaning of its own here was pressed; nothing here.
    virtual void slotKeyPress(QKeyEvent* event);
    /// F1: opens the manager's page of the user guide.
    virtual void slotHelp();
    /// The module is about to end: hears nothing more.
    virtual void slotModuleClosing();

private:
    enum class Heard { keys, looking, all };

    bool hear(QWidget* widget, Heard what);
    void ignore(QObject* widget);
    bool edits(Heard what) const { return what == Heard::all && !m_readOnly; }
    void keyPressed(QKeyEvent* event, Heard what);
    void mouseUsed(QWidget* viewer, QMouseEvent* event, Heard what);
    void pressed(QWidget* viewer, const QPoint& position, Heard what);

    QHash<QObject*, Heard> m_heard;
    QPointer<QWidget> m_selected;
    bool m_readOnly = false;
};
