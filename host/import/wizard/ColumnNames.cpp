#include "ColumnNames.h"

#include "ColumnHeader.h"
#include "TKnownProperty.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace {

std::vector<int> importedInOrder(const ImportMapping& mapping) {
    std::vector<int> places(mapping.columns.size());
    std::iota(places.begin(), places.end(), 0);
    const auto rank = [&](int place) {
        if (place == mapping.identifier) {
            return 0;
        }
        return mapping.columns[static_cast<std::size_t>(place)].property() >= 0 ? 1 : 2;
    };
    const auto isLeftOut = [&](int place) {
        return !mapping.columns[static_cast<std::size_t>(place)].isImported();
    };
    places.erase(std::remove_if(places.begin(), places.end(), isLeftOut), places.end());
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) { return rank(a) < rank(b); });
    return places;
}

} // namespace

ColumnNames::ColumnNames(const ImportMapping& mapping, const std::vector<ColumnHeader>& headers,
                         const QVector<TKnownProperty>& properties) {
    struct Holder {
        int place = 0;
        int next = 2; // number of the next column of this name
    };
    QHash<QString, Holder> holders;
    for (std::size_t i = 0; i < mapping.columns.size(); ++i) {
        m_names += QString();
    }
    for (const int place : importedInOrder(mapping)) {
        const int property = mapping.columns[static_cast<std::size_t>(place)].property();
        const QString wanted =
            property >= 0 ? properties[property].label : headers[static_cast<std::size_t>(place)].name();
        QString name = wanted;
        if (holders.contains(wanted)) {
            m_renamed += {place, holders[wanted].place, wanted};
            while (holders.contains(name)) {
                name = QStringLiteral("%1 (%2)").arg(wanted, QString::number(holders[wanted].next++));
            }
        }
        holders.insert(name, {place, 2});
        m_names[place] = name;
    }
}
