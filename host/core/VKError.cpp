#include "VKError.h"

#include <QCoreApplication>
#include <QStringList>
#include <QtDebug>

#include <utility>

namespace {

VKError::Handler& handlerInUse() {
    static VKError::Handler handler;
    return handler;
}

QStringList filled(QStringList texts) {
    texts.removeAll({});
    return texts;
}

QString textOf(const std::exception& error) {
    const auto* const ours = dynamic_cast<const VKError*>(&error);
    QString text = ours != nullptr ? ours->text() : QString::fromUtf8(error.what());
    if (!text.isEmpty()) {
        return text;
    }
    return QCoreApplication::translate("VKError", "An operation failed without saying why; try it again",
                                       "Une opération a échoué sans dire pourquoi ; essayez à nouveau");
}

} // namespace

VKError::VKError(const QString& message, const QString& place, const QString& advice)
    : m_message(message), m_place(place), m_advice(advice),
      m_what(filled({message, place, advice}).value(0).toUtf8()) {}

VKError::~VKError() = default;

const char* VKError::what() const noexcept {
    return m_what.constData();
}

QString VKError::text() const {
    return filled({m_message, m_place, m_advice}).join(QLatin1Char(' '));
}

void VKError::dispatchError(const std::exception& error) {
    const Handler handler = handlerInUse(); // a copy: the handler may set another
    if (handler) {
        handler(textOf(error));
        return;
    }
    qWarning().noquote() << textOf(error);
}

VKError::Handler VKError::setHandler(Handler handler) {
    return std::exchange(handlerInUse(), std::move(handler));
}
