#include "WorkbookModel.h"

#include "CellReference.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int fewestRows = 2; // a header and one row below it
constexpr int fewestColumns = 2;

int proposal(const Workbook::Book& book) {
    const auto isTable = [](const Workbook::Sheet& sheet) {
        return !sheet.hidden && sheet.rowCount() >= fewestRows && sheet.columnCount() >= fewestColumns;
    };
    const auto isFilled = [](const Workbook::Sheet& sheet) { return !sheet.rows.empty(); };
    auto found = std::find_if(book.sheets.begin(), book.sheets.end(), isTable);
    if (found == book.sheets.end()) {
        found = std::find_if(book.sheets.begin(), book.sheets.end(), isFilled);
    }
    return found == book.sheets.end() ? 0 : static_cast<int>(found - book.sheets.begin());
}

} // namespace

WorkbookModel::WorkbookModel(Workbook::Book book, const QString& fileName)
    : m_book(std::move(book)), m_fileName(fileName), m_sheet(proposal(m_book)) {}

WorkbookModel::~WorkbookModel() = default;

int WorkbookModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : sheet().rowCount();
}

int WorkbookModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : sheet().columnCount();
}

QVariant WorkbookModel::data(const QModelIndex& index, int role) const {
    const bool isValue = role == Qt::DisplayRole || role == Qt::EditRole;
    return isValue && index.isValid() ? sheet().cell(index.row(), index.column()) : QVariant();
}

QVariant WorkbookModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || section < 0) {
        return {};
    }
    return orientation == Qt::Horizontal ? QVariant(columnLetters(section)) : QVariant(section + 1);
}

QString WorkbookModel::columnLetters(int column) {
    return CellReference::columnLetters(column);
}
