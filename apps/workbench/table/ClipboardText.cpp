#include "ClipboardText.h"

#include "CellText.h"
#include "CsvText.h"
#include "VKDataModel.h"
#include "VKError.h"

#include <QCoreApplication>
#include <QItemSelection>

#include <algorithm>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ClipboardText)
};

const QLatin1String lineEnd("\r\n");
const QLatin1Char tab('\t');

QString field(const QString& text) {
    const auto special = [](QChar c) { return c == '\t' || c == '"' || c == '\r' || c == '\n'; };
    if (std::none_of(text.begin(), text.end(), special)) {
        return text;
    }
    return QLatin1Char('"') + QString(text).replace(QLatin1String("\""), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

// The places that any of the ranges covers, in ascending order.
template <typename First, typename Last>
std::vector<int> covered(const QItemSelection& selection, int count, First first, Last last) {
    std::vector<bool> marks(static_cast<std::size_t>(count));
    for (const QItemSelectionRange& range : selection) {
        for (int i = first(range); i <= last(range); ++i) {
            marks[static_cast<std::size_t>(i)] = true;
        }
    }
    std::vector<int> places;
    for (int i = 0; i < count; ++i) {
        if (marks[static_cast<std::size_t>(i)]) {
            places.push_back(i);
        }
    }
    return places;
}

std::vector<int> rowsOf(const QItemSelection& selection, int count) {
    return covered(
        selection, count, [](const auto& range) { return range.top(); },
        [](const auto& range) { return range.bottom(); });
}

std::vector<int> columnsOf(const QItemSelection& selection, int count) {
    return covered(
        selection, count, [](const auto& range) { return range.left(); },
        [](const auto& range) { return range.right(); });
}

std::size_t placeOf(const std::vector<int>& places, int value) {
    return static_cast<std::size_t>(std::lower_bound(places.begin(), places.end(), value) - places.begin());
}

} // namespace

ClipboardText::ClipboardText(const QAbstractItemModel& table, const QItemSelection& selection,
                             QChar decimalPoint)
    : m_table(table), m_decimalPoint(decimalPoint), m_rows(rowsOf(selection, table.rowCount())),
      m_columns(columnsOf(selection, table.columnCount())) {
    if (static_cast<qint64>(m_rows.size()) * static_cast<qint64>(m_columns.size()) > maxCells) {
        throw VKError(Texts::tr("The selection is too large to be copied.",
                                "La sélection est trop grande pour être copiée."),
                      {},
                      Texts::tr("Select fewer cells, or export the table.",
                                "Sélectionnez moins de cellules ou exportez le tableau."));
    }
    m_selected.resize(m_rows.size() * m_columns.size());
    for (const QItemSelectionRange& range : selection) {
        const std::size_t left = placeOf(m_columns, range.left());
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const std::size_t start = placeOf(m_rows, row) * m_columns.size() + left;
            const auto first = m_selected.begin() + static_cast<std::ptrdiff_t>(start);
            std::fill_n(first, range.width(), true);
        }
    }
}

bool ClipboardText::isSelected(std::size_t row, std::size_t column) const {
    return m_selected[row * m_columns.size() + column];
}

QString ClipboardText::rowOf(std::size_t row) const {
    QString text;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (column > 0) {
            text += tab;
        }
        if (isSelected(row, column)) {
            const QModelIndex index = m_table.index(m_rows[row], m_columns[column]);
            text += field(CellText::of(index.data(VKDataModel::datasetRole), m_decimalPoint));
        }
    }
    return text;
}

QString ClipboardText::cells() const {
    QString text;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        text += rowOf(row) + lineEnd;
    }
    return text;
}

QString ClipboardText::cellsWithHeaders() const {
    const bool rowHeaders = CsvText::hasRowHeaders(m_table);
    const auto header = [this](int section, Qt::Orientation orientation) {
        return field(
            CellText::of(m_table.headerData(section, orientation, VKDataModel::datasetRole), m_decimalPoint));
    };
    QStringList names;
    for (const int column : m_columns) {
        names.append(header(column, Qt::Horizontal));
    }
    QString text = (rowHeaders ? QString(tab) : QString()) + names.join(tab) + lineEnd;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        text += (rowHeaders ? header(m_rows[row], Qt::Vertical) + tab : QString()) + rowOf(row) + lineEnd;
    }
    return text;
}
