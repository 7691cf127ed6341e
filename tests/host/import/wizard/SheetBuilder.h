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
    return {{"toc",
             "TOC",
             "Total organic carbon",
             "Carbone organique total",
             "wt%",
             {"%", "% pds"},
             {"cot"},
             Family::SourceRock},
            {"tmax",
             "Tmax",
             "Temperature of the S2 maximum",
             "Température du maximum de S2",
             "°C",
             {},
             {},
             Family::SourceRock},
            {"s1",
             "S1",
             "Free hydrocarbons",
             "Hydrocarbures libres",
             "mg HC/g rock",
             {"mg/g"},
             {},
             Family::SourceRock},
            {"gas.c1", "C1", "Methane", "Méthane", "mol%", {"%"}, {}, Family::Gas},
            {"gas.d13c.c1",
             "δ13C C1",
             "Carbon isotopes of methane",
             "Isotopes du carbone du méthane",
             "‰ VPDB",
             {},
             {},
             Family::Gas},
            {"gas.dd.c1",
             "δD C1",
             "Hydrogen isotopes of methane",
             "Isotopes de l'hydrogène du méthane",
             "‰ VSMOW",
             {},
             {},
             Family::Gas},
            {"gas.c6+", "C6+", "Hexanes and heavier", "Hexanes et plus lourds", "mol%", {}, {}, Family::Gas}};
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
