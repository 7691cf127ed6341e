#pragma once

#include <QByteArray>
#include <QMap>

/// A small .xlsx workbook of one sheet, "Sheet", whose parts can be replaced before it is packed.
struct PackedWorkbook {
    PackedWorkbook();
    /// With these rows.
    explicit PackedWorkbook(const QByteArray& rows);

    /// What libzip makes of the parts.
    QByteArray bytes() const;

    QMap<QByteArray, QByteArray> parts;
    bool compressed = true;
    /// Encrypts the parts if it isn't empty.
    QByteArray password;
};
