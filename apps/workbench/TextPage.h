#pragma once

#include <QPlainTextEdit>

/// A page that shows a text as it stands, to be read and copied.
class TextPage : public QPlainTextEdit {
    Q_OBJECT

public:
    TextPage(const QString& title, const QString& text, QWidget* parent = nullptr);
};
