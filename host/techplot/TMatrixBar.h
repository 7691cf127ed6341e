#pragma once

#include <QToolBar>

class QAction;
class TBarCaption;

namespace TechPlot {

/// The commands for all viewers of a matrix, as tool buttons that keep their texts as long as there is room.
/// The two switches start as they were left the last time (keys "techplot/linked" and "techplot/grid").
class TMatrixBar : public QToolBar {
    Q_OBJECT

public:
    explicit TMatrixBar(QWidget* parent);

    QAction* linkAction() const { return m_link; }
    QAction* gridAction() const { return m_grid; }
    QAction* resetAction() const { return m_reset; }
    QAction* exportAction() const { return m_export; }

    /// Tells the number of viewers; without any, there is nothing to show or to export.
    void setCount(int count);

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* addSwitch(const QString& icon, const QString& key, bool standard);
    void retranslate();

    QAction* m_link;
    QAction* m_grid;
    QAction* m_reset;
    QAction* m_export;
    TBarCaption* m_hint;
    int m_count = 0;
};

} // namespace TechPlot
