#include "ColumnListModel.h"

#include "ImportDraft.h"
#include "TPlainTip.h"
#include "TavrelColors.h"
#include "WorkbookModel.h"

#include <QFont>
#include <QGuiApplication>

namespace {

/// "TOC – Total organic carbon (wt%)"
QString describe(const TKnownProperty& property) {
    const QByteArray english = property.english.toUtf8();
    const QByteArray french = property.french.toUtf8();
    const QString name =
        QCoreApplication::translate("ColumnListModel", english.constData(), french.constData());
    QString text = property.label;
    if (!name.isEmpty() && name != property.label) {
        text += QStringLiteral(" – ") + name;
    }
    return property.unit.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, property.unit);
}

} // namespace

ColumnListModel::ColumnListModel(ImportDraft& draft) : m_draft(draft) {}

void ColumnListModel::reset() {
    beginResetModel();
    endResetModel();
}

void ColumnListModel::refresh() {
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnEnd - 1));
    }
}

QStringList ColumnListModel::choices(int row) const {
    QStringList texts = {tr("Not imported", "Non importée"),
                         tr("As it is: %1", "Telle quelle : %1").arg(m_draft.header(row).name())};
    for (const TKnownProperty& property : m_draft.matcher().properties()) {
        texts += describe(property);
    }
    return texts;
}

bool ColumnListModel::isIdentifier(int row) const {
    return row == m_draft.mapping().identifier;
}

int ColumnListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_draft.columnCount();
}

int ColumnListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnEnd;
}

QVariant ColumnListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const int row = index.row();
    const ColumnMapping& mapping = m_draft.column(row);
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return TPlainTip::of(text(row, index.column()));
    case Qt::EditRole:
        return index.column() == Target ? QVariant(mapping.target) : QVariant();
    case Qt::CheckStateRole:
        return index.column() == DecimalComma && hasMark(row)
                   ? QVariant(mapping.decimalComma ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Qt::ForegroundRole:
        return mapping.isImported() ? QVariant() : TavrelColors::caption(QGuiApplication::palette());
    case Qt::FontRole:
        if (isIdentifier(row)) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

bool ColumnListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid()) {
        return false;
    }
    if (index.column() == Target && role == Qt::EditRole) {
        m_draft.setTarget(index.row(), value.toInt());
    } else if (index.column() == DecimalComma && role == Qt::CheckStateRole) {
        m_draft.setDecimalComma(index.row(), value.toInt() == Qt::Checked);
    } else {
        return false;
    }
    refresh();
    emit edited();
    return true;
}

QVariant ColumnListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant();
    }
    switch (section) {
    case Letter:
        return tr("Column", "Colonne");
    case Header:
        return tr("In the file", "Dans le fichier");
    case Unit:
        return tr("Unit", "Unité");
    case Target:
        return tr("Imported as", "Importée comme");
    case DecimalComma:
        return tr("Decimal comma", "Virgule décimale");
    case Content:
        return tr("Content", "Contenu");
    default:
        return {};
    }
}

Qt::ItemFlags ColumnListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == Target) {
        return shown | Qt::ItemIsEditable;
    }
    return index.column() == DecimalComma && hasMark(index.row()) ? shown | Qt::ItemIsUserCheckable : shown;
}

QString ColumnListModel::text(int row, int column) const {
    switch (column) {
    case Letter:
        return WorkbookModel::columnLetters(m_draft.column(row).column);
    case Header:
        return m_draft.header(row).text();
    case Unit:
        return m_draft.header(row).unit;
    case Target:
        return targetText(row);
    case Content:
        return contentText(row);
    default:
        return {};
    }
}

QString ColumnListModel::targetText(int row) const {
    if (!m_draft.column(row).isImported()) {
        return tr("Not imported", "Non importée");
    }
    return m_draft.names().names()[row];
}

QString ColumnListModel::contentText(int row) const {
    const ColumnContent& content = m_draft.content(row);
    const bool comma = m_draft.column(row).decimalComma;
    const int numbers = content.numbersUnder(comma);
    const int texts = content.textsUnder(comma);
    if (content.filled() == 0) {
        return tr("empty", "vide");
    }
    if (isIdentifier(row)) {
        return content.filled() == 1 ? tr("1 name", "1 nom")
                                     : tr("%1 names", "%1 noms").arg(content.filled());
    }
    QStringList parts;
    if (numbers > 0) {
        parts += numbers == 1 ? tr("1 number", "1 nombre") : tr("%1 numbers", "%1 nombres").arg(numbers);
    }
    if (texts > 0) {
        const QString examples = content.examples.join(QStringLiteral(", "));
        const QString count = texts == 1 ? tr("1 text", "1 texte") : tr("%1 texts", "%1 textes").arg(texts);
        parts += examples.isEmpty() ? count : QStringLiteral("%1 (%2)").arg(count, examples);
    }
    return parts.join(QStringLiteral(", "));
}

bool ColumnListModel::hasMark(int row) const {
    const ColumnContent& content = m_draft.content(row);
    const bool isOpen = content.numbersUnder(true) != content.numbersUnder(false);
    return isOpen && !isIdentifier(row) && m_draft.column(row).isImported();
}
