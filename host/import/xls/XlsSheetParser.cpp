#include "XlsSheetParser.h"

#include "BiffStream.h"
#include "BiffStrings.h"
#include "XlsBudget.h"
#include "XlsGlobals.h"
#include "XlsRefusal.h"

#include <cstring>

namespace {

using Cause = XlsRefusal::Cause;

constexpr quint16 biff8 = 0x0600;
constexpr quint16 worksheet = 0x0010;
constexpr int columnsOfFormat = 256;

/// A number in 30 bits: a whole one or the upper part of a floating one, either perhaps a hundredfold.
double numberOfRk(quint32 rk) {
    double number = 0;
    if ((rk & 2) != 0) {
        number = static_cast<qint32>(rk) >> 2;
    } else {
        const quint64 bits = quint64{rk & 0xFFFFFFFC} << 32;
        std::memcpy(&number, &bits, sizeof number);
    }
    return (rk & 1) != 0 ? number / 100 : number;
}

QString errorText(quint8 code) {
    switch (code) {
    case 0x00:
        return QStringLiteral("#NULL!");
    case 0x07:
        return QStringLiteral("#DIV/0!");
    case 0x0F:
        return QStringLiteral("#VALUE!");
    case 0x17:
        return QStringLiteral("#REF!");
    case 0x1D:
        return QStringLiteral("#NAME?");
    case 0x24:
        return QStringLiteral("#NUM!");
    case 0x2A:
        return QStringLiteral("#N/A");
    default: // of a later program; an error it stays
        return QStringLiteral("#ERROR%1!").arg(code);
    }
}

QString truthText(quint8 value) {
    return value != 0 ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
}

void checkStart(BiffRecord record) {
    if (record.kind != BiffRecord::Bof || record.content.u16() != biff8 ||
        record.content.u16() != worksheet) {
        throw XlsRefusal(Cause::Damaged);
    }
}

} // namespace

qint64 XlsSheetParser::parse(const QByteArray& stream, qint64 position) {
    BiffStream records(stream, position);
    checkStart(records.next());
    for (int depth = 1; depth > 0;) { // charts are kept within, with numbers of their own
        BiffRecord record = records.next();
        if (record.kind == BiffRecord::Bof) {
            ++depth;
        } else if (record.kind == BiffRecord::EndOfSubstream) {
            --depth;
        } else if (depth == 1) {
            take(record);
        }
    }
    forgetAwaited();
    return records.position();
}

void XlsSheetParser::take(BiffRecord& record) {
    BiffCursor& content = record.content;
    switch (record.kind) {
    case BiffRecord::Number:
        return takeNumber(content);
    case BiffRecord::Rk:
        return takeRk(content);
    case BiffRecord::MulRk:
        return takeManyRk(content);
    case BiffRecord::Formula:
        return takeFormula(content);
    case BiffRecord::String:
        return takeFormulaText(content);
    case BiffRecord::BoolErr:
        return takeTruthOrError(content);
    case BiffRecord::LabelSst:
        return takeSharedText(content);
    case BiffRecord::Label:
    case BiffRecord::RString:
        return takeOwnText(content);
    case BiffRecord::MergeCells:
        return takeMerged(content);
    default:
        return;
    }
}

XlsSheetParser::Place XlsSheetParser::place(BiffCursor& content) {
    const int row = content.u16();
    const int column = content.u16();
    return {row, column};
}

void XlsSheetParser::takeNumber(BiffCursor& content) {
    const Place at = place(content);
    const quint16 style = content.u16();
    store(at, m_globals.styles().value(content.f64(), style));
}

void XlsSheetParser::takeRk(BiffCursor& content) {
    const Place at = place(content);
    const quint16 style = content.u16();
    store(at, m_globals.styles().value(numberOfRk(content.u32()), style));
}

/// Several cells of a row: their numbers, and behind them the last column, which is counted from the length.
void XlsSheetParser::takeManyRk(BiffCursor& content) {
    constexpr qint64 bytesOfCell = 6;
    constexpr qint64 bytesOfColumn = 2;
    Place at = place(content);
    const qint64 bytesOfCells = content.leftHere() - bytesOfColumn;
    if (bytesOfCells <= 0 || bytesOfCells % bytesOfCell != 0) {
        throw XlsRefusal(Cause::Damaged);
    }
    for (qint64 left = bytesOfCells; left > 0; left -= bytesOfCell) {
        const quint16 style = content.u16();
        store(at, m_globals.styles().value(numberOfRk(content.u32()), style));
        ++at.column;
    }
    if (content.u16() != at.column - 1) {
        throw XlsRefusal(Cause::Damaged);
    }
}

/// The stored result is a number unless its upper two bytes are set, which makes it none.
void XlsSheetParser::takeFormula(BiffCursor& content) {
    forgetAwaited();
    const Place at = place(content);
    const quint16 style = content.u16();
    const double number = content.f64();
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    if (bits >> 48 == 0xFFFF) {
        takeSpecialResult(at, bits);
    } else {
        store(at, m_globals.styles().value(number, style));
    }
}

void XlsSheetParser::takeSpecialResult(const Place& at, quint64 result) {
    const auto kind = static_cast<quint8>(result);
    const auto value = static_cast<quint8>(result >> 16);
    switch (kind) {
    case 0:
        m_awaitsText = at;
        return;
    case 1:
        return store(at, truthText(value));
    case 2:
        return store(at, errorText(value));
    case 3:
        return store(at, QString(QLatin1String("")));
    default:
        throw XlsRefusal(Cause::Damaged);
    }
}

/// Between a formula and its text may stand what it shares with its neighbours.
void XlsSheetParser::takeFormulaText(BiffCursor& content) {
    if (!m_awaitsText) {
        return;
    }
    storeText(*m_awaitsText, BiffStrings::text(content));
    m_awaitsText.reset();
}

void XlsSheetParser::forgetAwaited() {
    m_missingResults += m_awaitsText ? 1 : 0;
    m_awaitsText.reset();
}

void XlsSheetParser::takeTruthOrError(BiffCursor& content) {
    const Place at = place(content);
    content.skip(2); // the style
    const quint8 value = content.u8();
    const bool isError = content.u8() != 0;
    store(at, isError ? errorText(value) : truthText(value));
}

void XlsSheetParser::takeSharedText(BiffCursor& content) {
    const Place at = place(content);
    content.skip(2); // the style
    store(at, m_globals.sharedText(content.u32()));
}

void XlsSheetParser::takeOwnText(BiffCursor& content) {
    const Place at = place(content);
    content.skip(2); // the style
    storeText(at, BiffStrings::text(content));
}

void XlsSheetParser::takeMerged(BiffCursor& content) {
    for (int left = content.u16(); left > 0; --left) {
        Workbook::MergedRange range;
        range.firstRow = content.u16();
        range.lastRow = content.u16();
        range.firstColumn = content.u16();
        range.lastColumn = content.u16();
        if (range.firstRow > range.lastRow || range.firstColumn > range.lastColumn ||
            range.lastColumn >= columnsOfFormat) {
            throw XlsRefusal(Cause::Damaged);
        }
        m_budget.takeMergedRange();
        m_sheet.merged.push_back(range);
    }
}

void XlsSheetParser::storeText(const Place& at, const QString& text) {
    store(at, m_budget.taken(text));
}

void XlsSheetParser::store(const Place& at, const QVariant& value) {
    if (at.column >= columnsOfFormat) {
        throw XlsRefusal(Cause::Damaged);
    }
    m_budget.takeCell();
    if (at.row >= m_sheet.rowCount()) {
        m_budget.takeRows(m_sheet.rowCount(), at.row + 1);
        m_sheet.rows.resize(static_cast<std::size_t>(at.row) + 1);
    }
    std::vector<QVariant>& cells = m_sheet.rows[static_cast<std::size_t>(at.row)];
    const auto length = static_cast<int>(cells.size());
    if (at.column >= length) {
        m_budget.takeColumns(length, at.column + 1);
        cells.resize(static_cast<std::size_t>(at.column) + 1);
    }
    cells[static_cast<std::size_t>(at.column)] = value;
}
