#pragma once

#include "DatabaseKind.h"
#include "SqlDialect.h"
#include "VKError.h"

class QSqlError;

namespace TechDB {

/// A statement or an opening that the database refused, told in words for the user.
class SqlError : public VKError {
public:
    SqlError(SqlFailure failure, const QSqlError& cause, DatabaseKind kind, const QString& place);
    ~SqlError() override;

    SqlFailure failure() const { return m_failure; }

private:
    SqlFailure m_failure;
};

} // namespace TechDB
