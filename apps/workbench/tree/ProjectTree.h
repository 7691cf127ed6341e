#pragma once

#include "HelpId.h"
#include "HelpInterface.h"

#include <QList>
#include <QModelIndex>
#include <QTimer>
#include <QWidget>

class ExpansionKeeper;
class ProjectTreeModel;
class ProjectView;
class QAction;
class QLineEdit;
class VKObject2;

namespace TechDB {
class TDatabase;
} // namespace TechDB

/// What the open project holds: a filter line, and below it the datasets with their samples and the
/// analyses, each in the natural order of their names. Follows what is changed in the project by whatever
/// part of the application; selection and expansion stay with the objects. What fails is told by
/// VKError::dispatchError.
class ProjectTree : public QWidget, public HelpInterface {
    Q_OBJECT

public:
    explicit ProjectTree(QWidget* parent = nullptr);
    ~ProjectTree() override;

    int getIdForHelp() const override { return HelpId::tree; }

    /// The project to be shown, null if none is open. Not owned; to be told before it closes.
    void setProject(TechDB::TDatabase* project);
    /// Reads the project anew: another window may have written its file.
    void refresh();
    /// The same once the events at hand are done: many changes may come one after the other, and are read
    /// once.
    void refreshSoon();

    /// The selected datasets and analyses from top to bottom. A sample is no object of its own.
    QList<const VKObject2*> selectedObjects() const;

    /// Takes the keyboard to the filter line, its text selected.
    void focusFilter();

    /// Enabled as the selection allows.
    QAction* openAction() const { return m_open; }
    QAction* renameAction() const { return m_rename; }
    QAction* removeAction() const { return m_remove; }
    QAction* exportAction() const { return m_export; }
    QAction* sendAction() const { return m_send; }

signals:
    /// To be shown as tables. For a selected sample, its dataset.
    void openRequested(const QList<const VKObject2*>& objects);
    /// To be written as CSV.
    void exportRequested(const QList<const VKObject2*>& objects);
    /// To go to the quality check: analyses alone.
    void sendRequested(const QList<const VKObject2*>& objects);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* addCommand(const QString& icon, void (ProjectTree::*run)());
    void layOut();
    void connectParts();
    void applyFilter();
    QModelIndexList heldRows() const;
    void enterView();
    void updateState();
    void updateHint();
    void updateActions();
    void retranslate();
    void showMenu(const QPoint& place);

    void open();
    void rename();
    void removeSelected();
    void exportSelected();
    void send();

    TechDB::TDatabase* m_project = nullptr;
    ProjectTreeModel* m_model;
    QLineEdit* m_filter;
    ProjectView* m_view;
    ExpansionKeeper* m_expansion;
    QTimer m_pendingRefresh;
    QAction* m_open;
    QAction* m_rename;
    QAction* m_remove;
    QAction* m_export;
    QAction* m_send;
};
