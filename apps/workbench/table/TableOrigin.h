#pragma once

#include "gradereport/exportorigin.h"

#include <QObject>

/// Goes with the table of a stored object, as a child of it: what the table will rest on when it is exported.
class TableOrigin : public QObject {
    Q_OBJECT

public:
    TableOrigin(gradereport::ExportOrigin origin, QObject* table);

    const gradereport::ExportOrigin& origin() const { return m_origin; }

    /// That of a table; null if it has none.
    static const TableOrigin* of(const QObject& table);

private:
    gradereport::ExportOrigin m_origin;
};
