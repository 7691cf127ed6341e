#include "NameLists.h"

#include "NameText.h"
#include "StoredInstant.h"
#include "StoredName.h"

namespace TechDB {

namespace {

/// No stored name has as many letters, and engines limit the length of a pattern.
constexpr int longestPart = 4 * maximumNameLength;

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
    return read(QStringLiteral("SELECT t.id, t.sort_key, t.name, t.created, t.point_count FROM analyses t"
                               " WHERE"),
                {}, QStringLiteral("t.search_name LIKE ? ESCAPE '!'"), range);
}

ListedNames NameLists::datasets(const NameRange& range) const {
    // Not EXISTS: some planners read all samples for it, though only a page of datasets is asked for.
    return read(
        QStringLiteral("SELECT t.id, t.sort_key, t.name, t.created, (SELECT count(*) FROM"
                       " (SELECT 1 FROM samples s WHERE s.dataset_id = t.id LIMIT 1) first_sample)"
                       " FROM datasets t WHERE"),
        {},
        QStringLiteral("(t.search_name LIKE ? ESCAPE '!' OR t.id IN"
                       " (SELECT s.dataset_id FROM samples s WHERE s.search_name LIKE ? ESCAPE '!'))"),
        range);
}

ListedNames NameLists::samples(qint64 dataset, const NameRange& range) const {
    return read(QStringLiteral("SELECT t.id, t.sort_key, t.name, NULL, 0 FROM samples t"
                               " WHERE t.dataset_id = ? AND"),
                {dataset}, QStringLiteral("t.search_name LIKE ? ESCAPE '!'"), range);
}

ListedNames NameLists::read(QString statement, SqlConnection::Values values, const QString& holdsPart,
                            const NameRange& range) const {
    ListedNames names;
    if (range.part.size() > longestPart) {
        return names;
    }
    statement += QLatin1String(" (t.sort_key, t.id) > (?, ?)");
    values << SqlConnection::text(range.after.sortKey) << range.after.key;
    if (range.upTo) {
        statement += QLatin1String(" AND (t.sort_key, t.id) <= (?, ?)");
        values << SqlConnection::text(range.upTo->sortKey) << range.upTo->key;
    }
    if (range.only) {
        statement += QLatin1String(" AND t.id = ?");
        values << *range.only;
    }
    if (!range.part.isEmpty()) {
        statement += QLatin1String(" AND ") + holdsPart;
        values += SqlConnection::Values(holdsPart.count(QLatin1Char('?')), pattern(range.part));
    }
    statement += QLatin1String(" ORDER BY t.sort_key, t.id LIMIT ?");
    values << range.limit;
    m_connection.select(statement, values, [&names](const QSqlQuery& row) {
        names.append({{row.value(1).toString(), row.value(0).toLongLong()},
                      row.value(2).toString(),
                      StoredInstant::read(row.value(3)),
                      row.value(4).toInt()});
    });
    return names;
}

} // namespace TechDB
