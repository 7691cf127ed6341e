#pragma once

#include <QTimer>
#include <QTreeView>

class ProjectTreeModel;

/// The rows of the project tree. The names get the room that dates and counts leave; where that is too
/// little, the dates give way, then the counts. While there is nothing to show, it says why and what to do.
///
/// The model's lists are read on as their ends come near what is shown. What goes to the end of a list or
/// takes all of it (selecting all, End, a range over its end, looking for typed letters, opening all) reads
/// the rest first.
///
/// Keyboard: Enter opens or closes a branch whose row can't be opened otherwise; the menu key asks for the
/// menu at the current row.
class ProjectView : public QTreeView {
    Q_OBJECT

public:
    /// The model is not owned.
    explicit ProjectView(ProjectTreeModel& model, QWidget* parent = nullptr);
    ~ProjectView() override;

    /// Plain text, shown while there is no row.
    void setHint(const QString& hint);
    QString hint() const { return m_hint; }

    void selectAll() override;
    void keyboardSearch(const QString& search) override;

signals:
    void selectionMayHaveChanged();
    /// The place is one of the screen.
    void menuRequested(const QPoint& place);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isEmpty() const;
    bool isShownOpen(const QModelIndex& list) const;
    QModelIndex lastBelow(QModelIndex row) const;
    void readOnInSight();
    void readAllShown();
    void readWhole(const QModelIndex& branch);
    void selectRestOfLists();
    void setUpHeader();
    void sizeColumns();
    void spanNames(const QModelIndex& parent, int first, int last, bool span);

    ProjectTreeModel& m_model;
    QTimer m_pendingReading;
    QString m_hint;
};
