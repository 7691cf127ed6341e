#pragma once

#include <QMainWindow>

#include <functional>

class LogPanel;
class MessageLogModel;
class ProjectTree;
class QSplitter;
class TBarCaption;
class VKRibbon;
class Workspace;

/// The main window: menus and ribbon on top, project tree at the left, workspace in the middle, log at the
/// bottom. Places its parts and remembers how the user left them.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// The log outlives this object.
    explicit MainWindow(MessageLogModel& log);
    ~MainWindow() override;

    VKRibbon& ribbon() const { return *m_ribbon; }
    ProjectTree& tree() const { return *m_tree; }
    Workspace& workspace() const { return *m_workspace; }
    LogPanel& log() const { return *m_log; }

    /// What the status bar says while nothing else is going on there.
    void showStatus(const QString& text);

    /// Asked before the window closes; false keeps it open.
    void setCloseGuard(std::function<bool()> guard) { m_mayClose = std::move(guard); }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void restore();

    VKRibbon* m_ribbon;
    ProjectTree* m_tree;
    Workspace* m_workspace;
    LogPanel* m_log;
    QSplitter* m_columns;
    QSplitter* m_rows;
    TBarCaption* m_status;
    std::function<bool()> m_mayClose;
};
