#include "TInputsDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

TInputsDialog::TInputsDialog(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), m_form(new QFormLayout),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    layout->addLayout(m_form);
    layout->addWidget(m_buttons);
    // Wide enough for a title of the window's bar to be read whole.
    setMinimumWidth(std::max(400, fontMetrics().horizontalAdvance(title) + 120));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void TInputsDialog::addTextInput(const QString& key, const QString& label, const QString& value,
                                 QLineEdit::EchoMode mode, const QString& tip) {
    auto* input = new QLineEdit(value);
    input->setEchoMode(mode);
    input->setToolTip(tip);
    input->setPlaceholderText(tip);
    input->selectAll();
    m_form->addRow(label, input);
    m_inputs.insert(key, input);
    setTabOrder(input, m_buttons);
    if (m_inputs.size() == 1) {
        input->setFocus(); // not the button that stands ready while the other one waits for a text
    }
    connect(input, &QLineEdit::textChanged, this, &TInputsDialog::checkTexts);
    checkTexts();
}

QString TInputsDialog::getTextIntput(const QString& key) const {
    const QLineEdit* input = m_inputs.value(key);
    return input != nullptr ? input->text().trimmed() : QString();
}

void TInputsDialog::checkTexts() {
    const bool complete = std::none_of(m_inputs.cbegin(), m_inputs.cend(), [](const QLineEdit* input) {
        return input->text().trimmed().isEmpty();
    });
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(complete);
}
