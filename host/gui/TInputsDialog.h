#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QMap>

class QDialogButtonBox;
class QFormLayout;

/// A dialog that asks for a few texts. exec returns 1 when the user confirmed, which takes a text that isn't
/// blank in every input, and 0 otherwise.
class TInputsDialog : public QDialog {
    Q_OBJECT

public:
    TInputsDialog(const QString& title, QWidget* parent);

    /// The tip is the input's tooltip and stands in it while it is empty. A second input of one key replaces
    /// the first as what getTextIntput reads.
    void addTextInput(const QString& key, const QString& label, const QString& value,
                      QLineEdit::EchoMode mode, const QString& tip);
    /// The text as it stands in the input, without blanks around it; a null string for an unknown key.
    QString getTextIntput(const QString& key) const;

private:
    void checkTexts();

    QFormLayout* m_form;
    QDialogButtonBox* m_buttons;
    QMap<QString, QLineEdit*> m_inputs;
};
