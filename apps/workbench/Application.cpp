#include "Application.h"

#include "BilingualTranslator.h"
#include "MessageLoggerInterface.h"

#include <exception>

namespace {

QString unexpected(const QString& text) {
    return BilingualTranslator::tr("An operation failed and was given up: %1",
                                   "Une opération a échoué et a été abandonnée : %1")
        .arg(text.toHtmlEscaped());
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        MessageLoggerInterface::Error(unexpected(QString::fromUtf8(error.what())));
    } catch (...) {
        MessageLoggerInterface::Error(unexpected(BilingualTranslator::tr("no text", "sans texte")));
    }
    return false;
}
