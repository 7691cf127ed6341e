#include "XlsxSheetParser.h"

#include "XlsxBudget.h"
#include "XlsxText.h"
#include "XlsxXml.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsxSheetParser", english, french);
}

QString notAPlace(const QString& text) {
    return translated("\"%1\" is no place in a sheet", "« %1 » n'est pas un endroit d'une feuille").arg(text);
}

} // namespace

XlsxSheetParser::XlsxSheetParser(XlsxXml& xml, const Common& common, XlsxBudget& budget,
                                 Workbook::Sheet& sheet)
    : m_xml(xml), m_common(common), m_budget(budget), m_sheet(sheet) {}

void XlsxSheetParser::parse() {
    if (!m_xml.enter(QLatin1String("worksheet"))) {
        m_xml.fail(translated("it is no worksheet", "ce n'est pas une feuille de calcul"));
    }
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("sheetData")) {
            takeRows();
        } else if (m_xml.name() == QLatin1String("mergeCells")) {
            takeMergedRanges();
        } else {
            m_xml.skip();
        }
    }
    m_xml.finish();
}

void XlsxSheetParser::takeRows() {
    while (m_xml.nextChild()) {
        if (m_xml.name() != QLatin1String("row")) {
            m_xml.skip();
            continue;
        }
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const QStringRef number = attributes.value(QLatin1String("r"));
        bool isNumber = true;
        m_row = number.isEmpty() ? m_row + 1 : number.toInt(&isNumber) - 1;
        if (!isNumber || m_row < 0 || m_row >= m_budget.limits().rows) {
            m_xml.fail(notAPlace(number.toString()));
        }
        m_column = -1;
        takeCells();
    }
}

void XlsxSheetParser::takeCells() {
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("c")) {
            takeCell(m_xml.attributes());
        } else {
            m_xml.skip();
        }
    }
}

// A cell without a place stands right of the one before it; its row is the element around it.
void XlsxSheetParser::takeCell(const QXmlStreamAttributes& attributes) {
    const QStringRef place = attributes.value(QLatin1String("r"));
    const auto reference = CellReference::parse(place, m_budget.limits());
    m_column = reference ? reference->column : m_column + 1;
    if ((!place.isEmpty() && !reference) || m_column >= m_budget.limits().columns) {
        m_xml.fail(notAPlace(place.toString()));
    }
    Cell cell{attributes.value(QLatin1String("t")), attributes.value(QLatin1String("s")), {}};
    while (m_xml.nextChild()) {
        if (m_xml.name() == QLatin1String("v")) {
            cell.value = m_xml.text();
            cell.hasValue = true;
        } else if (m_xml.name() == QLatin1String("is")) {
            cell.value = XlsxText::read(m_xml, m_budget);
            cell.hasValue = true;
        } else {
            cell.hasFormula = cell.hasFormula || m_xml.name() == QLatin1String("f");
            m_xml.skip();
        }
    }
    const QVariant value = valueOf(cell);
    if (value.isValid()) {
        store(value);
    } else if (cell.hasFormula) {
        noteFormulaWithoutResult();
    }
}

QVariant XlsxSheetParser::valueOf(const Cell& cell) const {
    if (!cell.hasValue) {
        return {};
    }
    if (cell.type == QLatin1String("inlineStr")) {
        return cell.value;
    }
    if (cell.type == QLatin1String("str")) {
        return m_budget.cut(XlsxText::unescaped(cell.value));
    }
    const QString value = cell.value.trimmed();
    if (value.isEmpty()) {
        return {};
    }
    if (cell.type == QLatin1String("s")) {
        return sharedText(value);
    }
    if (cell.type == QLatin1String("b")) {
        const bool isFalse = value == QLatin1String("0") || value == QLatin1String("false");
        return isFalse ? QStringLiteral("FALSE") : QStringLiteral("TRUE");
    }
    if (cell.type == QLatin1String("d")) {
        return isoDate(cell);
    }
    const bool isNumber = cell.type.isEmpty() || cell.type == QLatin1String("n");
    return isNumber ? number(cell) : m_budget.cut(value); // else an error's text
}

QVariant XlsxSheetParser::sharedText(const QString& index) const {
    const std::optional<QString> text = m_common.strings.at(index);
    if (!text) {
        m_xml.fail(translated("there is no shared text %1", "il n'y a pas de texte partagé %1").arg(index));
    }
    return *text;
}

// What a double can't hold is kept as it is written, so that nothing counts with it unseen.
QVariant XlsxSheetParser::number(const Cell& cell) const {
    bool isNumber = false;
    const double value = cell.value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value)) {
        return m_budget.cut(cell.value.trimmed());
    }
    return ExcelDate::value(value, m_common.origin, m_common.styles.kindOf(cell.style));
}

// Some writers give a day its midnight.
QVariant XlsxSheetParser::isoDate(const Cell& cell) const {
    static const QRegularExpression midnight(QStringLiteral("T00:00(:00(\\.0+)?)?Z?$"));
    const QString text = m_budget.cut(cell.value.trimmed());
    const bool isDay = m_common.styles.kindOf(cell.style) == ExcelFormat::Kind::Date;
    return isDay ? QString(text).remove(midnight) : text;
}

void XlsxSheetParser::store(const QVariant& value) {
    m_budget.takeCell();
    auto& rows = m_sheet.rows;
    const auto row = static_cast<std::size_t>(m_row);
    if (row >= rows.size()) {
        m_budget.takePlaces(static_cast<qint64>(row + 1 - rows.size()));
        rows.resize(row + 1);
    }
    auto& cells = rows[row];
    const auto column = static_cast<std::size_t>(m_column);
    if (column >= cells.size()) {
        m_budget.takePlaces(static_cast<qint64>(column + 1 - cells.size()));
        if (cells.empty() && row > 0) {
            cells.reserve(std::max(rows[row - 1].size(), column + 1)); // rows of a table are alike
        }
        cells.resize(column + 1);
    }
    cells[column] = value;
}

void XlsxSheetParser::noteFormulaWithoutResult() {
    if (m_formulasWithoutResult++ == 0) {
        m_firstWithoutResult = {m_row, m_column};
    }
}

void XlsxSheetParser::takeMergedRanges() {
    while (m_xml.nextChild()) {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const QStringRef text = attributes.value(QLatin1String("ref"));
        const int colon = text.indexOf(':');
        const auto first = CellReference::parse(text.left(colon), m_budget.limits());
        const auto last = colon < 0 ? first : CellReference::parse(text.mid(colon + 1), m_budget.limits());
        if (!first || !last || last->row < first->row || last->column < first->column) {
            m_xml.fail(notAPlace(text.toString()));
        }
        m_budget.takePlaces(1);
        m_sheet.merged.append({first->row, first->column, last->row, last->column});
        m_xml.skip();
    }
}
