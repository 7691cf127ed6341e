#include "ImportDraft.h"

#include "AsciiImportWizardStrategy.h"
#include "CellValue.h"
#include "IdentifierGuess.h"
#include "LayoutGuess.h"
#include "MappedTable.h"
#include "VKDataModelGeneric.h"

#include <algorithm>

ImportDraft::ImportDraft(const std::vector<Workbook::Sheet>& sheets, int sheet,
                         const AsciiImportWizardStrategy& strategy)
    : m_sheets(sheets), m_strategy(strategy), m_matcher(offeredBy(strategy)),
      m_memory(strategy.metaObject()->className(), m_matcher.properties()) {
    chooseSheet(sheet >= 0 && sheet < static_cast<int>(sheets.size()) ? sheet : 0);
}

QVector<TKnownProperty> ImportDraft::offeredBy(const AsciiImportWizardStrategy& strategy) {
    QVector<TKnownProperty> offered;
    strategy.setProperties(offered);
    return offered;
}

void ImportDraft::chooseSheet(int sheet) {
    if (sheet < 0 || sheet >= static_cast<int>(m_sheets.size())) {
        return;
    }
    m_mapping.sheet = sheet;
    m_mapping.layout = LayoutGuess::of(this->sheet());
    propose();
}

void ImportDraft::setHeaderRow(int row) {
    if (row != m_mapping.layout.headerRow) {
        setLayout(LayoutGuess::below(sheet(), row));
    }
}

void ImportDraft::setHeaderRows(int count) {
    TableLayout layout = m_mapping.layout;
    const int more = count - layout.headerRows;
    layout.headerRows = count;
    layout.unitsRow += layout.unitsRow == TableLayout::none ? 0 : more;
    layout.firstDataRow += more;
    setLayout(layout);
}

void ImportDraft::setUnitsRow(int row) {
    TableLayout layout = m_mapping.layout;
    layout.unitsRow = row;
    layout.firstDataRow = std::max(layout.firstDataRow, row + 1);
    setLayout(layout);
}

void ImportDraft::setFirstDataRow(int row) {
    TableLayout layout = m_mapping.layout;
    layout.firstDataRow = row;
    setLayout(layout);
}

void ImportDraft::setLayout(TableLayout layout) {
    const int rows = sheet().rowCount();
    layout.headerRow = std::clamp(layout.headerRow, TableLayout::none, std::max(rows - 1, 0));
    layout.headerRows = std::clamp(layout.headerRows, 1, TableLayout::mostHeaderRows);
    layout.unitsRow = std::clamp(layout.unitsRow, TableLayout::none, std::max(rows - 1, 0));
    layout.firstDataRow = std::clamp(layout.firstDataRow, 0, rows);
    if (layout != m_mapping.layout) {
        m_mapping.layout = layout;
        propose();
    }
}

void ImportDraft::setIdentifier(int place) {
    if (!contains(place)) {
        return;
    }
    m_mapping.identifier = place;
    updateNames();
    checkIdentifiers();
}

void ImportDraft::setTarget(int place, int target) {
    const int choices = ColumnMapping::firstProperty + m_matcher.properties().size();
    if (!contains(place) || target < 0 || target >= choices) {
        return;
    }
    m_mapping.columns[static_cast<std::size_t>(place)].target = target;
    updateNames();
}

void ImportDraft::setDecimalComma(int place, bool decimalComma) {
    if (contains(place)) {
        m_mapping.columns[static_cast<std::size_t>(place)].decimalComma = decimalComma;
    }
}

int ImportDraft::placeOf(int sheetColumn) const {
    const bool isInside = sheetColumn >= 0 && sheetColumn < static_cast<int>(m_places.size());
    return isInside ? m_places[static_cast<std::size_t>(sheetColumn)] : TableLayout::none;
}

int ImportDraft::importedCount() const {
    const auto& columns = m_mapping.columns;
    return static_cast<int>(std::count_if(columns.begin(), columns.end(),
                                          [](const ColumnMapping& column) { return column.isImported(); }));
}

QVariant ImportDraft::importedCell(int row, int sheetColumn) const {
    QVariant cell = sheet().cell(row, sheetColumn);
    const int place = placeOf(sheetColumn);
    if (row < m_mapping.layout.firstDataRow || place < 0 || place == m_mapping.identifier ||
        !column(place).isImported()) {
        return cell;
    }
    return CellValue::imported(cell, column(place).decimalComma);
}

std::unique_ptr<VKDataModelGeneric> ImportDraft::table() const {
    auto table = MappedTable::make(sheet(), m_mapping, m_rows, m_names.names());
    if (contains(m_mapping.identifier)) {
        m_strategy.setIDcolumnName(*table, m_names.names()[m_mapping.identifier]);
    }
    return table;
}

void ImportDraft::remember() const {
    m_memory.remember(m_headers, m_mapping);
}

void ImportDraft::propose() {
    m_rows = MappedTable::rows(sheet(), m_mapping.layout);
    readColumns();
    for (int place = 0; place < columnCount(); ++place) {
        m_mapping.columns[static_cast<std::size_t>(place)].target =
            m_strategy.getDefaultIndex(header(place), m_matcher);
    }
    m_mapping.identifier = IdentifierGuess::of(m_headers);
    m_isRemembered = m_memory.recall(m_headers, m_mapping);
    updateNames();
    checkIdentifiers();
}

void ImportDraft::readColumns() {
    const std::vector<ColumnHeader> headers = ColumnHeader::read(sheet(), m_mapping.layout);
    const std::vector<ColumnContent> contents = ColumnContent::read(sheet(), m_rows);
    const std::vector<bool> commas = ColumnContent::decimalCommas(contents);
    m_headers.clear();
    m_contents.clear();
    m_mapping.columns.clear();
    m_places.assign(headers.size(), TableLayout::none);
    for (std::size_t column = 0; column < headers.size(); ++column) {
        if (headers[column].levels.isEmpty() && contents[column].filled() == 0) {
            continue;
        }
        m_places[column] = columnCount();
        m_mapping.columns.push_back({static_cast<int>(column), ColumnMapping::notImported, commas[column]});
        m_headers.push_back(headers[column]);
        m_contents.push_back(contents[column]);
    }
}

void ImportDraft::checkIdentifiers() {
    const int place = m_mapping.identifier;
    m_identifiers =
        contains(place) ? IdentifierCheck(sheet(), m_rows, column(place).column) : IdentifierCheck();
}

void ImportDraft::updateNames() {
    const int identifier = m_mapping.identifier;
    if (contains(identifier) && !column(identifier).isImported()) {
        m_mapping.columns[static_cast<std::size_t>(identifier)].target = ColumnMapping::asItIs;
    }
    m_names = ColumnNames(m_mapping, m_headers, m_matcher.properties());
}
