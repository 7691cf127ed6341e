#pragma once

#include <QWidget>

// A line of plain text at the end of a tool bar that gives way to the buttons: shown whole or shortened, as
// there is room, and whole in its tool tip.
class TBarCaption : public QWidget {
    Q_OBJECT

public:
    TBarCaption(Qt::TextElideMode elide, QWidget* parent);

    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_elide;
    QString m_text;
};
