#include "TextPage.h"

#include <QFontDatabase>

TextPage::TextPage(const QString& title, const QString& text, QWidget* parent)
    : QPlainTextEdit(text, parent) {
    setWindowTitle(title);
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}
