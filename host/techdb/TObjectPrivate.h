#pragma once

#include <QString>

namespace TechDB {

/// What a user made, and no database brought along.
class TObjectPrivate {
public:
    explicit TObjectPrivate(const QString& number) : m_number(number) {}

    /// What its maker counts it by; "0" if he doesn't.
    const QString& privateNumber() const { return m_number; }

private:
    QString m_number;
};

} // namespace TechDB
