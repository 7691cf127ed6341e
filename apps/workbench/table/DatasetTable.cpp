#include "DatasetTable.h"

#include "VKDataModelGeneric.h"

#include <algorithm>
#include <numeric>

using TechDB::SampleTable;

namespace {

/// Names that are missing are blank, or numbers where they were stored.
bool saySomething(const QStringList& names) {
    for (int place = 0; place < names.size(); ++place) {
        const QString name = names.at(place).trimmed();
        if (!name.isEmpty() && name != QString::number(place + 1)) {
            return true;
        }
    }
    return false;
}

} // namespace

void DatasetTable::add(const QString& name, const SampleTable& sample) {
    m_samples.append({name, sample});
}

std::unique_ptr<VKDataModelGeneric> DatasetTable::table() const {
    QVector<Sample> samples = m_samples;
    if (lastRepeatsAll(samples)) {
        samples.removeLast();
    }
    if (areUpright(samples)) {
        for (Sample& sample : samples) {
            sample.table = turned(sample.table);
        }
    }
    return joined(samples);
}

bool DatasetTable::lastRepeatsAll(const QVector<Sample>& samples) {
    if (samples.size() < 2) {
        return false;
    }
    const auto columnsBefore = [](int sum, const Sample& sample) {
        return sum + sample.table.columnNames.size();
    };
    const SampleTable& last = samples.last().table;
    return last.rowNames == samples.first().table.rowNames &&
           last.columnNames.size() >= std::accumulate(samples.begin(), samples.end() - 1, 0, columnsBefore);
}

bool DatasetTable::areUpright(const QVector<Sample>& samples) {
    const auto upright = [](const Sample& sample) {
        return sample.table.columnNames.size() == 1 && sample.table.rowNames.size() > 1;
    };
    const auto lying = [](const Sample& sample) {
        return sample.table.rowNames.size() == 1 && sample.table.columnNames.size() > 1;
    };
    return std::any_of(samples.begin(), samples.end(), upright) &&
           std::none_of(samples.begin(), samples.end(), lying);
}

SampleTable DatasetTable::turned(const SampleTable& sample) {
    SampleTable result{sample.columnNames, sample.rowNames, {}, sample.properties};
    result.cells.reserve(sample.cells.size());
    for (int column = 0; column < sample.columnNames.size(); ++column) {
        for (int row = 0; row < sample.rowNames.size(); ++row) {
            result.cells.append(sample.cell(row, column));
        }
    }
    return result;
}

QVector<DatasetTable::Column> DatasetTable::columnsOf(const SampleTable& sample) {
    QHash<QString, int> seen;
    QVector<Column> columns;
    for (const QString& name : sample.columnNames) {
        columns.append({name, seen[name]++});
    }
    return columns;
}

std::unique_ptr<VKDataModelGeneric> DatasetTable::joined(const QVector<Sample>& samples) {
    QStringList headers{tr("Sample", "Échantillon")};
    int rows = 0;
    bool named = false;
    for (const Sample& sample : samples) {
        const QStringList& names = sample.table.rowNames;
        rows += names.size();
        named = named || saySomething(names);
    }
    if (named) {
        headers.append(tr("Row", "Ligne"));
    }
    const int first = headers.size();
    QHash<Column, int> places;
    for (const Sample& sample : samples) {
        for (const Column& column : columnsOf(sample.table)) {
            if (!places.contains(column)) {
                places.insert(column, headers.size());
                headers.append(column.first);
            }
        }
    }
    auto result = std::make_unique<VKDataModelGeneric>();
    result->createEmpty(headers.size(), rows);
    for (int column = 0; column < headers.size(); ++column) {
        result->setHeaderData(column, Qt::Horizontal, headers.at(column), VKDataModel::datasetRole);
    }
    int row = 0;
    for (const Sample& sample : samples) {
        fill(*result, row, first, sample, places);
        row += sample.table.rowNames.size();
    }
    return result;
}

void DatasetTable::fill(VKDataModelGeneric& table, int row, int firstColumn, const Sample& sample,
                        const QHash<Column, int>& places) {
    const auto set = [&table](int at, int column, const QVariant& value) {
        table.setData(table.index(at, column), value, VKDataModel::datasetRole);
    };
    const QVector<Column> columns = columnsOf(sample.table);
    for (int i = 0; i < sample.table.rowNames.size(); ++i, ++row) {
        set(row, 0, sample.name);
        if (firstColumn > 1) {
            set(row, 1, sample.table.rowNames.at(i));
        }
        for (int column = 0; column < columns.size(); ++column) {
            const QVariant& value = sample.table.cell(i, column);
            if (value.isValid()) {
                set(row, places.value(columns.at(column)), value);
            }
        }
    }
}
