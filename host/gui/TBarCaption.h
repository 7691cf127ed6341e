#pragma once

#include <QWidget>

/// A line of plain text in a tool bar or status bar that gives way to what else is there: shown whole or
/// shortened, as there is room, and whole in its tool tip.
class TBarCaption : public QWidget {
    Q_OBJECT

public:
    TBarCaption(Qt::TextElideMode elide, QWidget* parent, Qt::Alignment alignment = Qt::AlignRight);

    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_elide;
    Qt::Alignment m_alignment;
    QString m_text;
};
