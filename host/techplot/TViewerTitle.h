#pragma once

#include <QString>
#include <QWidget>

class QToolButton;

namespace TechPlot {

/// The upper edge of a viewer: its name, shortened where the room is short, the readout of the cursor, and
/// the buttons to export and to close.
class TViewerTitle : public QWidget {
    Q_OBJECT

public:
    explicit TViewerTitle(QWidget* parent);

    void setName(const QString& name);
    void setReadout(const QString& readout);

    QSize sizeHint() const override;

signals:
    void exportClicked();
    void closeClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QToolButton* addButton(const QString& icon);
    void retranslate();

    QString m_name;
    QString m_readout;
    QToolButton* m_export;
    QToolButton* m_close;
};

} // namespace TechPlot
