#pragma once

#include <QObject>
#include <QPointer>

class Chance;
class QDialog;
class QFileDialog;

/// Answers, for as long as it lives, each dialog and menu that opens, after a few changes to what it asks,
/// with any of its buttons. A file dialog gets a path in the given folder, or is turned down.
class Answers : public QObject {
    Q_OBJECT

public:
    Answers(Chance& chance, const QString& folder);

private:
    void wait();
    void look();
    void answer(QDialog& dialog);
    void answerWithFile(QFileDialog& dialog);

    Chance& m_chance;
    QString m_folder;
    QPointer<QDialog> m_dialog;
    int m_changesLeft = 0;
};
