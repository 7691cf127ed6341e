#pragma once

#include "HelpId.h"
#include "HelpInterface.h"
#include "VKDataModel.h"

#include <QWidget>

#include <memory>

class TableBar;
class TableGrid;
class TableOrder;

/// A page of the data editor: one table, which the page owns, to be read, sorted, copied and exported.
///
/// A click on a column's header sorts by it, a second one the other way round, a third one gives the model's
/// order back. Cells may change without a signal: what is painted is what the model answers at that moment,
/// and `refreshCells` has the page follow at once. Nothing is edited here.
class TableView : public QWidget, public HelpInterface {
    Q_OBJECT

public:
    /// The model must not be null.
    explicit TableView(std::unique_ptr<VKDataModel> model, QWidget* parent = nullptr);
    ~TableView() override;

    int getIdForHelp() const override { return HelpId::tables; }

    VKDataModel* model() const { return m_model.get(); }

    /// The model's name; a word for a table if it has none.
    QString title() const;

    /// Shows the cells, the name and, if the page is sorted, the order of this moment.
    void refreshCells();

    /// Puts the selected cells on the clipboard; the current one if none is selected, nothing without one.
    void copy(bool withHeaders);

    /// Writes the table, in the order shown, to a CSV file. Success and failure go to the user's log.
    void exportTo(const QString& path);

signals:
    /// The table was written to a file.
    void exported(const QString& path);
    /// The model was found under another name, or the language has changed.
    void titleChanged(const QString& title);

protected:
    void changeEvent(QEvent* event) override;

private:
    void connectCommands();
    void askWhereToExport();
    void updateCaption();
    void updateTitle();

    std::unique_ptr<VKDataModel> m_model;
    std::unique_ptr<TableOrder> m_order;
    TableBar* m_bar;
    TableGrid* m_grid;
    QString m_shownTitle;
};
