#include "ModalAnswers.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>

namespace {

constexpr int interval = 5; // ms

QPushButton* buttonOf(const QWidget& dialog, const QStringList& texts) {
    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    for (const QString& text : texts) {
        for (QPushButton* const button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                return button;
            }
        }
    }
    for (QPushButton* const button : buttons) {
        if (button->isDefault() && button->isEnabled()) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

ModalAnswers::ModalAnswers(const QStringList& buttons) : m_buttons(buttons) {
    connect(&m_clock, &QTimer::timeout, this, &ModalAnswers::answer);
    m_clock.start(interval);
}

void ModalAnswers::answer() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    m_asked.append(dialog->windowTitle());
    if (m_observer) {
        m_observer(*dialog);
    }
    if (QPushButton* const button = buttonOf(*dialog, m_buttons)) {
        button->click();
    } else {
        dialog->reject();
    }
}
