#pragma once

#include <QString>
#include <QWidget>

namespace TechPlot {

/// Under a viewer's title: a sentence in at most two lines, shortened where the room is short; the whole
/// of it is the tool tip. Hidden while there is none.
class TViewerNote : public QWidget {
    Q_OBJECT

public:
    explicit TViewerNote(QWidget* parent);

    /// Plain text.
    void setText(const QString& text);
    const QString& text() const { return m_text; }

    QSize sizeHint() const override { return {120, heightForWidth(width())}; }
    QSize minimumSizeHint() const override { return {0, heightForWidth(width())}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList linesIn(int width) const;

    QString m_text;
};

} // namespace TechPlot
