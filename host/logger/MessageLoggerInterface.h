#pragma once

#include "MessageLevel.h"

#include <QString>

/// The user-visible log. A message is one sentence in restricted rich text, as `MessageText` has it.
///
/// Messages go to the logger given, else to the default one, else to Qt's log as plain text. The default
/// logger also shows the failures that `VKError::dispatchError` reports, at Error level. For the interface
/// thread only.
class MessageLoggerInterface {
public:
    MessageLoggerInterface() = default;
    /// A default logger takes itself out.
    virtual ~MessageLoggerInterface();
    MessageLoggerInterface(const MessageLoggerInterface&) = delete;
    MessageLoggerInterface& operator=(const MessageLoggerInterface&) = delete;

    /// Takes one message. Nothing of the message is trusted.
    virtual void log(MessageLevel level, const QString& message) = 0;

    /// One message of this level; the default logger takes it if none is given.
    static void Information(const QString& message, MessageLoggerInterface* logger = nullptr);
    static void Warning(const QString& message, MessageLoggerInterface* logger = nullptr);
    static void Error(const QString& message, MessageLoggerInterface* logger = nullptr);
    static void Debug(const QString& message, MessageLoggerInterface* logger = nullptr);

    /// Makes `logger` the default in the place of the present one; null leaves none. Not owned.
    static void setDefaultLogger(MessageLoggerInterface* logger);

    /// Null if there is none.
    static MessageLoggerInterface* defaultLogger();
};
