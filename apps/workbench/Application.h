#pragma once

#include <QApplication>

/// The application, with a last net: an exception that leaves a slot or an event handler is logged with
/// its text, and the window lives on.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};
