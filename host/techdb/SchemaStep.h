#pragma once

#include <QStringList>

#include <functional>
#include <initializer_list>
#include <utility>

namespace TechDB {

class SqlConnection;

/// What leads a database from one version of its schema to the next. A plain value.
struct SchemaStep {
    using Work = std::function<void(SqlConnection&)>;

    SchemaStep() = default;
    SchemaStep(std::initializer_list<QString> sql) : statements(sql) {}
    SchemaStep(QStringList sql, Work work) : statements(std::move(sql)), rest(std::move(work)) {}

    QStringList statements;
    /// What SQL can't say, done after the statements; may be empty.
    Work rest;
};

} // namespace TechDB
