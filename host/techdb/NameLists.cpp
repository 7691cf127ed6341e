#include "NameLists.h"

#include "NameText.h"
#include "StoredInstant.h"
#include "StoredName.h"

namespace TechDB {

namespace {

/// No stored name has as many letters, and engines limit the length of a pattern.
constexpr int longestPart = 4 * maximumNameLength;

const QString nameHoldsPart = QStringLiteral("search_name LIKE ? ESCAPE '!'");

QString pattern(const QString& part) {
    QString text = NameText::folded(part);
    for (const char special : {'!', '%', '_'}) { // the one that makes others plain comes first
        text.replace(QLatin1Char(special), QLatin1Char('!') + QString(QLatin1Char(special)));
    }
    return QLatin1Char('%') + text + QLatin1Char('%');
}

} // namespace

bool NamePlace::operator<(const NamePlace& other) const {
    // As the database compares them; the codes of QString have another order.
    const int order = sortKey == other.sortKey ? 0 : qstrcmp(sortKey.toUtf8(), other.sortKey.toUtf8());
    return order < 0 || (order == 0 && key < other.key);
}

ListedNames NameLists::analyses(const NameRange& range) const {
    return read({QStringLiteral("analyses"), QStringLiteral("t.created, t.point_count"), {}, nameHoldsPart},
                {}, range);
}

ListedNames NameLists::datasets(const NameRange& range) const {
    // Not EXISTS: some planners read all samples for it, though only a page of datasets is asked for.
    return read({QStringLiteral("datasets"),
                 QStringLiteral("t.created, (SELECT count(*) FROM"
                                " (SELECT 1 FROM samples s WHERE s.dataset_id = t.id LIMIT 1) first_sample)"),
                 {},
                 QStringLiteral("(search_name LIKE ? ESCAPE '!' OR id IN"
                                " (SELECT dataset_id FROM samples WHERE search_name LIKE ? ESCAPE '!'))")},
                {}, range);
}

ListedNames NameLists::samples(qint64 dataset, const NameRange& range) const {
    return read({QStringLiteral("samples"), QStringLiteral("NULL, 0"), QStringLiteral("dataset_id = ? AND "),
                 nameHoldsPart},
                {dataset}, range);
}

// What is looked through lies in the index; the rows are read of the page alone.
ListedNames NameLists::read(const List& list, SqlConnection::Values values, const NameRange& range) const {
    ListedNames names;
    if (range.part.size() > longestPart) {
        return names;
    }
    QString conditions = list.of + QLatin1String("(sort_key, id) > (?, ?)");
    values << SqlConnection::text(range.after.sortKey) << range.after.key;
    if (range.upTo) {
        conditions += QLatin1String(" AND (sort_key, id) <= (?, ?)");
        values << SqlConnection::text(range.upTo->sortKey) << range.upTo->key;
    }
    if (range.only) {
        conditions += QLatin1String(" AND id = ?");
        values << *range.only;
    }
    if (!range.part.isEmpty()) {
        conditions += QLatin1String(" AND ") + list.holdsPart;
        values += SqlConnection::Values(list.holdsPart.count(QLatin1Char('?')), pattern(range.part));
    }
    values << range.limit;
    const QString statement =
        QStringLiteral("SELECT t.id, t.sort_key, t.name, %2 FROM"
                       " (SELECT id, sort_key FROM %1 WHERE %3 ORDER BY sort_key, id LIMIT ?) page"
                       " JOIN %1 t ON t.id = page.id ORDER BY page.sort_key, page.id")
            .arg(list.table, list.columns, conditions);
    m_connection.select(statement, values, [&names](const QSqlQuery& row) {
        names.append({{row.value(1).toString(), row.value(0).toLongLong()},
                      row.value(2).toString(),
                      StoredInstant::read(row.value(3)),
                      row.value(4).toInt()});
    });
    return names;
}

} // namespace TechDB
