#pragma once

#include "TEditor.h"
#include "TEditorLayout.h"
#include <QPair>
#include <QVector>
#include <optional>

namespace TechPlot {

class TMatrixBar;
class TViewerColumn;
class VKViewer2D;

/// The editor that shows viewers below each other in a scrolling column, with the commands for all of them
/// above. It owns its viewers, and those extracted from it until another editor takes them.
class TEditorMatrix : public TEditor, public TEditorLayout {
    Q_OBJECT

public:
    explicit TEditorMatrix(QWidget* parent = nullptr);
    ~TEditorMatrix() override;

    /// Puts the viewer into the column and takes it over, with the plotters that were made for it and are
    /// in no viewer. A row beyond the last one is the end. Null is ignored, and so is a viewer that is here.
    void insertRow(TViewer* viewer, int row);

    /// Takes the viewer out of the column. It is disposed of with the editor, unless it is inserted into
    /// another one or deleted before. One that isn't in the column is ignored.
    void extractViewer(TViewer* viewer);

    void viewerAdded(TViewer* viewer) override;
    void adjustViewers() override;

    /// All viewers from top to bottom.
    const QVector<TViewer*>& viewers() const;

    TMatrixBar* bar() const { return m_bar; }

    /// The plots of all viewers from top to bottom, whether they have been shown or not.
    QVector<const VKViewer2D*> plots() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void save(const QVector<const VKViewer2D*>& viewers, const QString& name);
    void setLinked(bool linked);
    void setGridVisible(bool visible);
    void resetAll();
    void relayTime(const VKViewer2D* source, double from, double to);
    void widenSpan(VKViewer2D* viewer);
    template <class Action>
    void forEachJoined(Action action);

    TMatrixBar* m_bar;
    TViewerColumn* m_column;
    QVector<VKViewer2D*> m_joined;
    std::optional<QPair<double, double>> m_span;
};

} // namespace TechPlot
