#pragma once

#include "MessageLoggerInterface.h"

#include <QStringList>

#include <iosfwd>
#include <vector>

/// A logger without a window: keeps the messages as they came and, if given a stream, writes each to it as
/// a line of plain text in UTF-8 behind its level ("error: ..."). The stream outlives the logger.
class MessageCollector : public MessageLoggerInterface {
public:
    /// A message as it came, in restricted rich text.
    struct Entry {
        MessageLevel level;
        QString message;
    };

    explicit MessageCollector(std::ostream* echo = nullptr) : m_echo(echo) {}
    ~MessageCollector() override;

    void log(MessageLevel level, const QString& message) override;

    const std::vector<Entry>& entries() const { return m_entries; }

    /// The messages of one level, oldest first.
    QStringList messages(MessageLevel level) const;

    void clear() { m_entries.clear(); }

private:
    std::ostream* m_echo;
    std::vector<Entry> m_entries;
};
