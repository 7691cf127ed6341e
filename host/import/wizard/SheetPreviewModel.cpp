#include "SheetPreviewModel.h"

#include "ImportDraft.h"
#include "TPlainTip.h"
#include "TavrelColors.h"
#include "Workbook.h"
#include "WorkbookModel.h"

#include <QFont>
#include <QGuiApplication>

namespace {

constexpr int shownDigits = 12;

QVariant aligned(int horizontal) {
    return horizontal | static_cast<int>(Qt::AlignVCenter);
}

} // namespace

SheetPreviewModel::SheetPreviewModel(const ImportDraft& draft) : m_draft(draft) {}

void SheetPreviewModel::reset() {
    beginResetModel();
    endResetModel();
}

void SheetPreviewModel::refresh() {
    if (rowCount() > 0 && columnCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
}

int SheetPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_draft.sheet().rowCount();
}

int SheetPreviewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || m_draft.columnCount() == 0
               ? 0
               : m_draft.column(m_draft.columnCount() - 1).column + 1;
}

QVariant SheetPreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return TPlainTip::of(text(row, index.column()));
    case Qt::TextAlignmentRole: {
        const bool isNumber = m_draft.importedCell(row, index.column()).userType() == QMetaType::Double;
        return aligned(isNumber ? Qt::AlignRight : Qt::AlignLeft);
    }
    case Qt::ForegroundRole:
        return isImported(row, index.column()) ? QVariant()
                                               : TavrelColors::caption(QGuiApplication::palette());
    case Qt::FontRole: {
        QFont font;
        font.setBold(isHeader(row));
        font.setItalic(row == m_draft.mapping().layout.unitsRow);
        return font;
    }
    default:
        return {};
    }
}

QVariant SheetPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (role == Qt::TextAlignmentRole) {
        return aligned(Qt::AlignLeft);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const int place = m_draft.placeOf(section);
    const QString name = place < 0 ? QString() : m_draft.names().names()[place];
    const QString text = QStringLiteral("%1\n%2").arg(WorkbookModel::columnLetters(section), name);
    return role == Qt::ToolTipRole ? TPlainTip::of(text) : text;
}

QString SheetPreviewModel::text(int row, int column) const {
    const QVariant cell = m_draft.importedCell(row, column);
    return cell.userType() == QMetaType::Double ? QString::number(cell.toDouble(), 'g', shownDigits)
                                                : cell.toString();
}

bool SheetPreviewModel::isHeader(int row) const {
    const TableLayout& layout = m_draft.mapping().layout;
    return layout.headerRow != TableLayout::none && row >= layout.headerRow &&
           row < layout.headerRow + layout.headerRows;
}

bool SheetPreviewModel::isImported(int row, int column) const {
    const int place = m_draft.placeOf(column);
    const TableLayout& layout = m_draft.mapping().layout;
    const bool isUsed = row >= layout.firstDataRow || isHeader(row) || row == layout.unitsRow;
    return isUsed && place >= 0 && m_draft.column(place).isImported();
}
