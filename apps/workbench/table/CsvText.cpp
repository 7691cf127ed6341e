#include "CsvText.h"

#include "CellText.h"
#include "VKDataModel.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr char byteOrderMark[] = "\xef\xbb\xbf";

QVariant header(const QAbstractItemModel& table, int section, Qt::Orientation orientation) {
    return table.headerData(section, orientation, VKDataModel::datasetRole);
}

bool needsQuotes(const QString& field) {
    const auto special = [](QChar c) { return c == '"' || c == ',' || c == '\r' || c == '\n'; };
    const bool blankAtEnd = !field.isEmpty() && (field.front().isSpace() || field.back().isSpace());
    return blankAtEnd || std::any_of(field.begin(), field.end(), special);
}

QString quoted(QString field) {
    field.replace(QLatin1String("\""), QLatin1String("\"\""));
    return QLatin1Char('"') + field + QLatin1Char('"');
}

} // namespace

CsvText::CsvText(const QAbstractItemModel& table) : m_table(table), m_hasRowHeaders(hasRowHeaders(table)) {}

bool CsvText::hasRowHeaders(const QAbstractItemModel& table) {
    for (int i = 0; i < table.rowCount(); ++i) {
        if (header(table, i, Qt::Vertical).isValid()) {
            return true;
        }
    }
    return false;
}

QByteArray CsvText::head() const {
    QStringList fields;
    if (m_hasRowHeaders) {
        fields.append(QString());
    }
    for (int column = 0; column < m_table.columnCount(); ++column) {
        fields.append(CellText::of(header(m_table, column, Qt::Horizontal)));
    }
    return byteOrderMark + line(fields);
}

QByteArray CsvText::row(int row) const {
    QStringList fields;
    if (m_hasRowHeaders) {
        fields.append(CellText::of(header(m_table, row, Qt::Vertical)));
    }
    for (int column = 0; column < m_table.columnCount(); ++column) {
        fields.append(CellText::of(m_table.index(row, column).data(VKDataModel::datasetRole)));
    }
    return line(fields);
}

QByteArray CsvText::all() const {
    QByteArray text = head();
    for (int i = 0; i < m_table.rowCount(); ++i) {
        text += row(i);
    }
    return text;
}

QByteArray CsvText::line(const QStringList& fields) const {
    QStringList written;
    for (const QString& field : fields) {
        // A line of a single empty field would be a blank line, which readers leave out.
        const bool blankLine = fields.size() == 1 && field.isEmpty();
        written.append(blankLine || needsQuotes(field) ? quoted(field) : field);
    }
    return written.join(QLatin1Char(',')).toUtf8() + "\r\n";
}
