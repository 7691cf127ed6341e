#pragma once

#include "WorkspaceInterface.h"

#include <QPointer>
#include <QStackedWidget>

#include <memory>

class EmptyPage;
class QTabWidget;
class VKDataModel;

namespace TechPlot {
class TEditor;
}

/// The middle of the main window: the plot area first, then tables and other pages as tabs; a sentence that
/// says what to do while there is none. Ctrl+F4 closes the page in front, where that is possible.
class Workspace : public QStackedWidget, public WorkspaceInterface {
    Q_OBJECT

public:
    explicit Workspace(QWidget* parent = nullptr);
    ~Workspace() override;

    void showEditor(QWidget* editor) override;
    void closeEditor(QWidget* editor) override;
    void arrangeViewers(int arrangement) override;

    /// Shows a table in a page of its own, in front.
    void addTable(std::unique_ptr<VKDataModel> model);
    /// Takes a page over and shows it in front, with a close button, under its window title.
    void addPage(QWidget* page);
    /// Brings a page to the front; false if it isn't here (any more).
    bool showPage(QWidget* page);
    /// Ends a page that was added; nothing if it isn't here.
    void closePage(QWidget* page);
    QWidget* currentPage() const;

    /// Ends all pages that this object owns.
    void closePages();
    /// Lets the tables show what their models say now, where cells are computed at every read.
    void refreshTables();

signals:
    /// A table is about to be shown.
    void tableOpened(const VKDataModel* table);
    /// A table was written to a file.
    void tableExported(const VKDataModel* table, const QString& path);
    /// A module shows its curves.
    void curvesShown(TechPlot::TEditor* curves);
    /// Viewers of these names were saved to a file.
    void curvesExported(const QString& path, const QStringList& viewers);

protected:
    void changeEvent(QEvent* event) override;

private:
    void translate();
    void bringToFront(QWidget* page);
    void addCloseButton(QWidget* page, int index);
    void followTitle(QWidget* page);
    void closeTab(int index);
    void showState();

    QTabWidget* m_tabs;
    EmptyPage* m_empty;
    QPointer<TechPlot::TEditor> m_plots;
};
