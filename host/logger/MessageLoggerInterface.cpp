#include "MessageLoggerInterface.h"

#include "MessageText.h"
#include "VKError.h"

#include <QtDebug>

namespace {

struct DefaultLogger {
    MessageLoggerInterface* logger = nullptr;
};

MessageLoggerInterface*& loggerInUse() {
    static DefaultLogger inUse;
    return inUse.logger;
}

void writeToQtLog(MessageLevel level, const QString& text) {
    switch (level) {
    case MessageLevel::Debug:
        qDebug().noquote() << text;
        break;
    case MessageLevel::Information:
        qInfo().noquote() << text;
        break;
    case MessageLevel::Warning:
    case MessageLevel::Error:
        qWarning().noquote() << text;
        break;
    }
}

void deliver(MessageLevel level, const QString& message, MessageLoggerInterface* logger) {
    MessageLoggerInterface* const receiver = logger != nullptr ? logger : loggerInUse();
    if (receiver != nullptr) {
        receiver->log(level, message);
        return;
    }
    writeToQtLog(level, MessageText(message).plain());
}

} // namespace

MessageLoggerInterface::~MessageLoggerInterface() {
    if (loggerInUse() == this) {
        setDefaultLogger(nullptr);
    }
}

void MessageLoggerInterface::Information(const QString& message, MessageLoggerInterface* logger) {
    deliver(MessageLevel::Information, message, logger);
}

void MessageLoggerInterface::Warning(const QString& message, MessageLoggerInterface* logger) {
    deliver(MessageLevel::Warning, message, logger);
}

void MessageLoggerInterface::Error(const QString& message, MessageLoggerInterface* logger) {
    deliver(MessageLevel::Error, message, logger);
}

void MessageLoggerInterface::Debug(const QString& message, MessageLoggerInterface* logger) {
    deliver(MessageLevel::Debug, message, logger);
}

void MessageLoggerInterface::setDefaultLogger(MessageLoggerInterface* logger) {
    loggerInUse() = logger;
    if (logger == nullptr) {
        VKError::setHandler({});
        return;
    }
    VKError::setHandler([](const QString& text) { Error(text); });
}

MessageLoggerInterface* MessageLoggerInterface::defaultLogger() {
    return loggerInUse();
}
