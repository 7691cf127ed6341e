#pragma once

#include <QString>

/// What a catalogue answers about something that it holds. Belongs to the catalogue until that is closed.
class VKVornRecord {
public:
    VKVornRecord(const QString& key, const QString& id);
    virtual ~VKVornRecord();
    VKVornRecord(const VKVornRecord&) = delete;
    VKVornRecord& operator=(const VKVornRecord&) = delete;

    /// The number of its row; formulas name a pair by it, in square brackets.
    virtual QString recordKey() const;
    /// What other operations know it by: the unique name of an EIC, the number of anything else.
    virtual QString recordId() const;

private:
    QString m_key;
    QString m_id;
};
