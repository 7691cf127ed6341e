#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace Workbook {
struct Sheet;
}

/// What becomes of the identifiers of a table's samples when they are stored.
class IdentifierCheck {
public:
    /// Rows whose samples would bear one name.
    struct Collision {
        QString identifier; ///< as it is stored
        QVector<int> rows;
    };

    /// As samples are named: a number loses its fraction (3.9 gives 3, "007" gives 7), any other text stays.
    /// Numbers are read with the precision of a float; those beyond a 32-bit integer stay text too. Empty for
    /// an empty text.
    static QString stored(const QString& text);

    /// Nothing is checked.
    IdentifierCheck() = default;
    /// Rows and column are the sheet's.
    IdentifierCheck(const Workbook::Sheet& sheet, const std::vector<int>& rows, int column);

    /// Rows without an identifier, whose samples are not stored.
    const QVector<int>& emptyRows() const { return m_emptyRows; }
    /// In the order of their first rows.
    const std::vector<Collision>& collisions() const { return m_collisions; }

private:
    QVector<int> m_emptyRows;
    std::vector<Collision> m_collisions;
};
