#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

/// Answers dialogs where nobody sits before the screen, for as long as it lives: presses the first button
/// that bears one of the given texts, else the default one, and turns down a dialog without either.
class ModalAnswers : public QObject {
    Q_OBJECT

public:
    explicit ModalAnswers(const QStringList& buttons = {});

    /// Called with each dialog before it is answered.
    void setObserver(std::function<void(QWidget&)> observer) { m_observer = std::move(observer); }

    /// The titles of the dialogs that were answered, in order.
    const QStringList& asked() const { return m_asked; }

private:
    void answer();

    QStringList m_buttons;
    QStringList m_asked;
    std::function<void(QWidget&)> m_observer;
    QTimer m_clock;
};
