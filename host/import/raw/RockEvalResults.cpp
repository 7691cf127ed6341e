#include "RockEvalResults.h"

#include "VKDataModelGeneric.h"
#include "rockeval/number.h"
#include "rockeval/resulttable.h"

#include <algorithm>

namespace RockEvalResults {

namespace {

enum Column { SectionColumn, KeyColumn, ValueColumn, ColumnCount };

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

/// Whether a text that is a number says more than the number would.
bool isLabel(const std::string& text) {
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    const bool padded = text.end() - first > 1 && *first == '0' && isDigit(first[1]);
    const bool whole = text.find_first_of(".,eE") == std::string::npos;
    return padded || (whole && std::count_if(text.begin(), text.end(), isDigit) > 15);
}

QVariant textCell(const std::string& text) {
    return text.empty() ? QVariant() : QVariant(QString::fromStdString(text));
}

QVariant valueCell(const std::string& text) {
    const std::optional<double> number = rockeval::parseNumber(text);
    return number && !isLabel(text) ? QVariant(*number) : textCell(text);
}

QString rowName(const rockeval::ResultSection& section, const rockeval::ResultEntry& entry) {
    QString key = QString::fromStdString(entry.key);
    if (section.name.empty()) {
        return key;
    }
    const QString header = QStringLiteral("[%1]").arg(QString::fromStdString(section.name));
    return key.isEmpty() ? header : header + QLatin1Char(' ') + key;
}

void fillRow(VKDataModelGeneric& model, int row, const rockeval::ResultSection& section,
             const rockeval::ResultEntry& entry) {
    model.setHeaderData(row, Qt::Vertical, rowName(section, entry));
    model.setData(model.index(row, SectionColumn), textCell(section.name));
    model.setData(model.index(row, KeyColumn), textCell(entry.key));
    model.setData(model.index(row, ValueColumn), valueCell(entry.value));
}

int rowsOf(const rockeval::ResultSection& section) {
    return std::max(1, static_cast<int>(section.entries.size()));
}

} // namespace

std::unique_ptr<VKDataModelGeneric> model(const rockeval::ResultTable& table) {
    int rows = 0;
    for (const rockeval::ResultSection& section : table.sections) {
        rows += rowsOf(section);
    }
    auto model = std::make_unique<VKDataModelGeneric>();
    model->createEmpty(ColumnCount, rows);
    model->setHeaderData(SectionColumn, Qt::Horizontal, QStringLiteral("Section"));
    model->setHeaderData(KeyColumn, Qt::Horizontal, QStringLiteral("Key"));
    model->setHeaderData(ValueColumn, Qt::Horizontal, QStringLiteral("Value"));
    int row = 0;
    for (const rockeval::ResultSection& section : table.sections) {
        if (section.entries.empty()) {
            fillRow(*model, row++, section, {});
        }
        for (const rockeval::ResultEntry& entry : section.entries) {
            fillRow(*model, row++, section, entry);
        }
    }
    return model;
}

} // namespace RockEvalResults
