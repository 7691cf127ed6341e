#pragma once

#include <QTreeView>

/// The rows of the project tree. The names get the room that dates and counts leave; where that is too
/// little, the dates give way, then the counts. While there is nothing to show, it says why and what to do.
///
/// Keyboard: Enter opens or closes a branch whose row can't be opened otherwise; the menu key asks for the
/// menu at the current row.
class ProjectView : public QTreeView {
    Q_OBJECT

public:
    /// The model is not owned.
    explicit ProjectView(QAbstractItemModel& model, QWidget* parent = nullptr);
    ~ProjectView() override;

    /// Plain text, shown while there is no row.
    void setHint(const QString& hint);
    QString hint() const { return m_hint; }

signals:
    void selectionMayHaveChanged();
    /// The place is one of the screen.
    void menuRequested(const QPoint& place);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isEmpty() const { return model()->rowCount() == 0; }
    void setUpHeader();
    void sizeColumns();
    void spanNames(const QModelIndex& parent, int first, int last);

    QString m_hint;
};
