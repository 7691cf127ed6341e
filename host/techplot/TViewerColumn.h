#pragma once

#include <QAbstractScrollArea>
#include <QVector>

namespace TechPlot {

class TViewer;

/// The scrolling column of a matrix: viewers below each other, all of one height, together as high as the
/// window or, when that would be too little for each, higher. Only viewers within sight are shown, so that
/// the others need not be built.
class TViewerColumn : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit TViewerColumn(QWidget* parent);
    ~TViewerColumn() override;

    /// The column becomes the viewer's parent. A row beyond the end is the end, one below 0 the start.
    void insert(TViewer* viewer, int row);
    /// Takes the viewer out, hidden; its parent stays to be set. False if it isn't here.
    bool take(TViewer* viewer);

    const QVector<TViewer*>& viewers() const { return m_viewers; }

    /// Lays out the rows anew, now rather than with the next event.
    void arrange();

    /// The first viewer within sight; null in an empty column.
    TViewer* firstInSight() const;

signals:
    void countChanged(int count);

protected:
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool event(QEvent* event) override;

private:
    void place();
    void paintEmpty();
    void arrangeLater();
    int leastHeight() const;

    QVector<TViewer*> m_viewers;
    int m_rowHeight = 1;
    bool m_arrangePending = false;
};

} // namespace TechPlot
