#include "TableOrigin.h"

#include <utility>

TableOrigin::TableOrigin(gradereport::ExportOrigin origin, QObject* table)
    : QObject(table), m_origin(std::move(origin)) {}

const TableOrigin* TableOrigin::of(const QObject& table) {
    return table.findChild<const TableOrigin*>(QString(), Qt::FindDirectChildrenOnly);
}
