#pragma once

#include "TToolButton.h"

/// Asks for files: the way for who has no file manager beside the window, or no mouse.
class TFileButton : public TToolButton {
    Q_OBJECT

public:
    explicit TFileButton(QWidget* parent = nullptr);

signals:
    /// At least one path, in the order of the dialog.
    void chosen(const QStringList& paths);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ask();
    void retranslate();
};
