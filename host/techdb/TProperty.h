#pragma once

#include <QString>

/// A property of a table: four texts, of which the first two, name and value, say it; unit and comment may
/// be null or empty.
class TProperty {
public:
    explicit TProperty(const QString& name = {}, const QString& value = {}, const QString& unit = {},
                       const QString& comment = {})
        : m_name(name), m_value(value), m_unit(unit), m_comment(comment) {}

    const QString& name() const { return m_name; }
    const QString& value() const { return m_value; }
    const QString& unit() const { return m_unit; }
    const QString& comment() const { return m_comment; }

private:
    QString m_name;
    QString m_value;
    QString m_unit;
    QString m_comment;
};
