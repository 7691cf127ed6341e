#pragma once

class QWidget;

/// The middle of the main window: plots and tables, each a page of its own.
///
/// Implemented by the application, and registered for as long as the implementation lives. For the
/// interface thread only.
class WorkspaceInterface {
public:
    /// For `arrangeViewers`: the viewers one below the other, sharing the height evenly.
    static constexpr int column = 0;

    virtual ~WorkspaceInterface();
    WorkspaceInterface(const WorkspaceInterface&) = delete;
    WorkspaceInterface& operator=(const WorkspaceInterface&) = delete;

    /// The registered implementation, or null. Ask each time: it may come and go.
    static WorkspaceInterface* returnMe();

    /// Shows an editor as a page under its window title, and brings it to front; one that is there already is
    /// only brought to front. The editor stays its maker's, who may destroy it at any time.
    virtual void showEditor(QWidget* editor) = 0;

    /// Takes the editor's page away and the editor out of its parent, hidden. An editor that is not there,
    /// or null, is ignored.
    virtual void closeEditor(QWidget* editor) = 0;

    /// Brings the plot area that was shown last to front and arranges its viewers. An unknown arrangement
    /// and an empty workspace change nothing.
    virtual void arrangeViewers(int arrangement) = 0;

protected:
    /// Registers this object. A second one while the first lives is refused with a warning.
    WorkspaceInterface();
};
