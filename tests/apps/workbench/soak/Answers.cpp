#include "Answers.h"

#include "Chance.h"
#include "Hands.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

constexpr int interval = 2; // ms
constexpr int mostChanges = 6;

} // namespace

Answers::Answers(Chance& chance, const QString& folder) : m_chance(chance), m_folder(folder) {
    wait();
}

/// Anew each time: an answer may open the next dialog before it returns, and that one waits for an answer
/// too.
void Answers::wait() {
    QTimer::singleShot(interval, this, &Answers::look);
}

void Answers::look() {
    wait();
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        for (int downs = m_chance.below(4); downs > 0; --downs) {
            QTest::keyClick(popup, Qt::Key_Down);
        }
        QTest::keyClick(popup, m_chance.oneIn(3) ? Qt::Key_Return : Qt::Key_Escape);
        if (popup == QApplication::activePopupWidget()) {
            popup->close();
        }
        return;
    }
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        if (m_dialog != dialog) {
            m_dialog = dialog;
            m_changesLeft = m_chance.below(mostChanges);
        }
        answer(*dialog);
    }
}

void Answers::answer(QDialog& dialog) {
    if (auto* const files = qobject_cast<QFileDialog*>(&dialog)) {
        return answerWithFile(*files);
    }
    if (m_changesLeft-- > 0) {
        Hands(m_chance).fiddle(dialog);
        return;
    }
    QList<QPushButton*> buttons;
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isEnabled()) {
            buttons.append(button);
        }
    }
    if (buttons.isEmpty() || m_changesLeft < -20) {
        dialog.reject();
    } else {
        m_chance.oneOf(buttons)->click();
    }
}

/// Nothing else is done to it: its list of files offers to delete them.
void Answers::answerWithFile(QFileDialog& dialog) {
    if (m_chance.oneIn(3)) {
        return dialog.reject();
    }
    const QString ending = m_chance.oneOf({QStringLiteral(".vornproj"), QStringLiteral(".csv"),
                                           QStringLiteral(".png"), QStringLiteral(".pdf")});
    dialog.selectFile(QDir(m_folder).filePath(QString::number(m_chance.below(3)) + ending));
    static_cast<QDialog&>(dialog).accept();
    if (dialog.isVisible()) {
        dialog.reject(); // there is no such file
    }
}
