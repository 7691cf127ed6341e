#include "CellReference.h"

namespace {
constexpr int letters = 26;
}

std::optional<CellReference> CellReference::parse(QStringView text, const Workbook::Limits& limits) {
    int at = 0;
    int column = 0;
    for (; at < text.size() && column <= limits.columns; ++at) {
        const char16_t letter = text[at].toUpper().unicode();
        if (letter < 'A' || letter > 'Z') {
            break;
        }
        column = column * letters + (letter - 'A' + 1);
    }
    int row = 0;
    const int digits = at;
    for (; at < text.size() && row <= limits.rows; ++at) {
        const char16_t digit = text[at].unicode();
        if (digit < '0' || digit > '9') {
            break;
        }
        row = row * 10 + (digit - '0');
    }
    const bool isWhole = at == text.size() && digits > 0 && at > digits;
    if (!isWhole || column > limits.columns || row < 1 || row > limits.rows) {
        return std::nullopt;
    }
    return CellReference{row - 1, column - 1};
}

QString CellReference::columnLetters(int column) {
    QString text;
    for (int rest = column + 1; rest > 0; rest = (rest - 1) / letters) {
        text.prepend(QChar('A' + (rest - 1) % letters));
    }
    return text;
}
