#pragma once

#include <QDateTime>

namespace TechDB {

/// When something came about.
class THistory {
public:
    /// In UTC; invalid for what was never stored.
    const QDateTime& created() const { return m_created; }
    void setCreated(const QDateTime& instant) { m_created = instant; }

private:
    QDateTime m_created;
};

} // namespace TechDB
