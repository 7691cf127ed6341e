#include "MessageCollector.h"

#include "MessageText.h"

#include <ostream>

namespace {

const char* wordFor(MessageLevel level) {
    switch (level) {
    case MessageLevel::Debug:
        return "debug";
    case MessageLevel::Information:
        return "information";
    case MessageLevel::Warning:
        return "warning";
    case MessageLevel::Error:
        break;
    }
    return "error";
}

} // namespace

MessageCollector::~MessageCollector() = default;

void MessageCollector::log(MessageLevel level, const QString& message) {
    m_entries.push_back({level, message});
    if (m_echo != nullptr) {
        *m_echo << wordFor(level) << ": " << MessageText(message).plain().toStdString() << std::endl;
    }
}

QStringList MessageCollector::messages(MessageLevel level) const {
    QStringList found;
    for (const Entry& entry : m_entries) {
        if (entry.level == level) {
            found += entry.message;
        }
    }
    return found;
}
