#pragma once

#include "ApplicationInterface.h"

#include <QObject>
#include <QWidget>

/// The application as modules reach it: turns what they ask for into signals, for the window to wire.
class ApplicationHost : public QObject, public ApplicationInterface {
    Q_OBJECT

public:
    /// The main window outlives this object.
    explicit ApplicationHost(QWidget& window);
    ~ApplicationHost() override;

    QWidget* mainWidget() const override { return &m_window; }
    void notifyProjectChanged(int change) override { emit projectChanged(change); }
    void showHelp(int helpId) override { emit helpRequested(helpId); }

signals:
    void projectChanged(int change);
    void helpRequested(int helpId);

private:
    QWidget& m_window;
};
