#pragma once

#include "AsciiImportWizardStrategy.h"
#include "ColumnMatcher.h"
#include "ImportMapping.h"
#include "VKDataModelGeneric.h"
#include "Workbook.h"

#include <QSettings>

#include <gtest/gtest.h>

/// A sheet of these rows; "" is an empty cell.
inline Workbook::Sheet sheetOf(std::vector<std::vector<QVariant>> rows) {
    Workbook::Sheet sheet;
    sheet.name = "Sheet1";
    for (auto& row : rows) {
        for (QVariant& cell : row) {
            if (cell == QVariant("")) {
                cell = QVariant();
            } else if (cell.userType() == QMetaType::Int) {
                cell = cell.toDouble();
            }
        }
    }
    sheet.rows = std::move(rows);
    return sheet;
}

/// What a table holds: the header, then its rows; numbers between sharp signs.
inline QString contentOf(const QAbstractItemModel& table) {
    QStringList lines;
    for (int row = -1; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QVariant cell =
                row < 0 ? table.headerData(column, Qt::Horizontal) : table.index(row, column).data();
            cells +=
                cell.userType() == QMetaType::Double ? QString("#%1#").arg(cell.toDouble()) : cell.toString();
        }
        lines += cells.join('|');
    }
    return lines.join('\n');
}

/// Properties of both kinds of tables, few enough to know by heart.
inline QVector<TKnownProperty> someProperties() {
    using Family = TKnownProperty::Family;
    const auto gas = [](const char* key, const char* label, const char* english, const char* french,
                        const char* unit, const QStringList& units = {}) {
        return TKnownProperty{key, label, english, french, unit, units, {}, Family::Gas};
    };
    TKnownProperty toc =
        gas("toc", "TOC", "Total organic carbon", "Carbone organique total", "wt%", {"%", "% pds"});
    toc.aliases = QStringList("cot");
    return {toc,
            gas("tmax", "Tmax", "Temperature of the S2 maximum", "Température du maximum de S2", "°C"),
            gas("s1", "S1", "Free hydrocarbons", "Hydrocarbures libres", "mg HC/g rock", {"mg/g"}),
            gas("gas.c1", "C1", "Methane", "Méthane", "mol%", {"%"}),
            gas("gas.d13c.c1", "δ13C C1", "Carbon isotopes of methane", "Isotopes du carbone du méthane",
                "‰ VPDB"),
            gas("gas.dd.c1", "δD C1", "Hydrogen isotopes of methane", "Isotopes de l'hydrogène du méthane",
                "‰ VSMOW"),
            gas("gas.c6+", "C6+", "Hexanes and heavier", "Hexanes et plus lourds", "mol%")};
}

/// A strategy that offers these, and is else like those of the application.
class SomeStrategy : public AsciiImportWizardStrategy {
public:
    void setProperties(QVector<TKnownProperty>& offered) const override { offered = someProperties(); }
    void setIDcolumnName(VKDataModelGeneric& table, const QString& name) const override {
        writeIDcolumnName(table, name);
    }
    int getDefaultIndex(const ColumnHeader& header, const ColumnMatcher& matcher) const override {
        return matchingIndex(header, matcher);
    }
};

/// Each test begins without remembered choices.
class WizardTest : public testing::Test {
protected:
    WizardTest() { QSettings().clear(); }
};
