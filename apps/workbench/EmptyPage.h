#pragma once

#include <QWidget>

/// A page that holds nothing yet and says what to do: a heading and a sentence below it, both plain text, in
/// the middle and wrapped to the width there is.
class EmptyPage : public QWidget {
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

    void setTexts(const QString& heading, const QString& advice);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_heading;
    QString m_advice;
};
