#include "AnalysisStore.h"

#include "CurveBlob.h"
#include "NameText.h"
#include "NaturalOrder.h"
#include "NumberedName.h"
#include "SqlConnection.h"
#include "SqlError.h"
#include "StoredInstant.h"
#include "StoredName.h"

#include <QCoreApplication>

namespace TechDB {

namespace {

/// In one statement, which serves all numbers of keys.
constexpr int keysAtOnce = 64;

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::AnalysisStore", english, french);
}

AnalysisInfo analysisOf(const QSqlQuery& row) {
    AnalysisInfo info;
    info.key = row.value(0).toLongLong();
    info.name = row.value(1).toString();
    info.analysisType = row.value(2).toString();
    info.created = StoredInstant::read(row.value(3));
    info.pointCount = row.value(4).toInt();
    return info;
}

QStringList linesOf(const QString& text) {
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

[[noreturn]] void throwTaken(const QString& name) {
    throw VKError(translated("An analysis named <b>%1</b> is already stored.",
                             "Une analyse nommée <b>%1</b> est déjà enregistrée.")
                      .arg(name.toHtmlEscaped()),
                  {}, translated("Choose another name.", "Choisissez un autre nom."));
}

[[noreturn]] void throwGone() {
    throw VKError(
        translated("The analysis is no longer in the project.", "L'analyse n'est plus dans le projet."), {},
        translated("Another window has deleted it: import its file again.",
                   "Une autre fenêtre l'a supprimée : importez à nouveau son fichier."));
}

[[noreturn]] void throwDamaged(const QString& name, const QString& reason) {
    throw VKError(translated("The stored curve of the analysis <b>%1</b> can't be used: %2.",
                             "La courbe enregistrée de l'analyse <b>%1</b> est inutilisable : %2.")
                      .arg(name.toHtmlEscaped(), reason),
                  {}, translated("Import the analysis again.", "Importez à nouveau l'analyse."));
}

} // namespace

QVector<AnalysisInfo> AnalysisStore::all() const {
    QVector<AnalysisInfo> list;
    m_connection.select(
        QStringLiteral("SELECT id, name, analysis_type, created, point_count FROM analyses ORDER BY id"), {},
        [&list](const QSqlQuery& row) { list.append(analysisOf(row)); });
    return list;
}

std::optional<AnalysisInfo> AnalysisStore::byName(const QString& name) const {
    std::optional<AnalysisInfo> found;
    m_connection.select(
        QStringLiteral("SELECT id, name, analysis_type, created, point_count FROM analyses WHERE name = ?"),
        {SqlConnection::text(name)}, [&found](const QSqlQuery& row) { found = analysisOf(row); });
    return found;
}

std::optional<AnalysisInfo> AnalysisStore::byKey(qint64 key) const {
    std::optional<AnalysisInfo> found;
    m_connection.select(
        QStringLiteral("SELECT id, name, analysis_type, created, point_count FROM analyses WHERE id = ?"),
        {key}, [&found](const QSqlQuery& row) { found = analysisOf(row); });
    return found;
}

QVector<AnalysisInfo> AnalysisStore::byKeys(const QVector<qint64>& keys) const {
    static const QString statement =
        QStringLiteral("SELECT id, name, analysis_type, created, point_count FROM analyses WHERE id IN (?%1)")
            .arg(QStringLiteral(", ?").repeated(keysAtOnce - 1));
    QVector<AnalysisInfo> list;
    for (int first = 0; first < keys.size(); first += keysAtOnce) {
        SqlConnection::Values values;
        for (int i = 0; i < keysAtOnce; ++i) {
            values.append(
                keys.at(qMin(first + i, keys.size() - 1))); // the last once more where there are fewer
        }
        m_connection.select(statement, values,
                            [&list](const QSqlQuery& row) { list.append(analysisOf(row)); });
    }
    return list;
}

QVector<AnalysisInfo> AnalysisStore::family(const QString& name) const {
    const QString base = NumberedName::base(name);
    QVector<AnalysisInfo> list;
    // All that begins with "base (", by the order of names: the closing bracket comes behind the opening one.
    m_connection.select(
        QStringLiteral("SELECT id, name, analysis_type, created, point_count FROM analyses"
                       " WHERE name = ? OR (name >= ? AND name < ?) ORDER BY id"),
        {SqlConnection::text(base), QString(base + QLatin1String(" (")), QString(base + QLatin1String(" )"))},
        [&](const QSqlQuery& row) {
            const AnalysisInfo info = analysisOf(row);
            if (info.name == base || NumberedName::base(info.name) == base) {
                list.append(info);
            }
        });
    return list;
}

qint64 AnalysisStore::add(const QString& name, const QString& analysisType, const TAnalysisData& curve) {
    checkName(name);
    const QString reason = curve.whyUnusable();
    if (!reason.isEmpty()) {
        throw VKError(translated("The analysis <b>%1</b> was not stored: %2.",
                                 "L'analyse <b>%1</b> n'a pas été enregistrée : %2.")
                          .arg(name.toHtmlEscaped(), reason),
                      {}, translated("Check the file that it came from.", "Vérifiez le fichier d'origine."));
    }
    const qint64 key = addInfo(name, analysisType, curve.dataSize());
    m_connection.insert(QStringLiteral("INSERT INTO curves (analysis_id, points) VALUES (?, ?)"),
                        {key, CurveBlob::encoded(curve)});
    return key;
}

qint64 AnalysisStore::addInfo(const QString& name, const QString& analysisType, int pointCount) {
    checkName(name);
    try {
        return m_connection.insert(
            QStringLiteral("INSERT INTO analyses"
                           " (name, sort_key, search_name, analysis_type, created, point_count)"
                           " VALUES (?, ?, ?, ?, ?, ?)"),
            {name, NaturalOrder::key(name), NameText::folded(name), SqlConnection::text(analysisType),
             StoredInstant::now(), pointCount});
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwTaken(name);
        }
        throw;
    }
}

void AnalysisStore::rename(qint64 key, const QString& name) {
    checkName(name);
    try {
        if (m_connection.execute(
                QStringLiteral("UPDATE analyses SET name = ?, sort_key = ?, search_name = ? WHERE id = ?"),
                {name, NaturalOrder::key(name), NameText::folded(name), key}) == 0) {
            throwGone();
        }
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwTaken(name);
        }
        throw;
    }
}

void AnalysisStore::remove(qint64 key) {
    if (m_connection.execute(QStringLiteral("DELETE FROM analyses WHERE id = ?"), {key}) == 0) {
        throwGone();
    }
}

TAnalysisData AnalysisStore::curve(qint64 key) const {
    QString name;
    qint64 pointCount = 0;
    QByteArray bytes;
    bool found = false;
    m_connection.select(QStringLiteral("SELECT a.name, a.point_count, c.points FROM analyses a"
                                       " LEFT JOIN curves c ON c.analysis_id = a.id WHERE a.id = ?"),
                        {key}, [&](const QSqlQuery& row) {
                            found = true;
                            name = row.value(0).toString();
                            pointCount = row.value(1).toLongLong();
                            bytes = row.value(2).toByteArray();
                        });
    if (!found) {
        throwGone();
    }
    if (!CurveBlob::fits(bytes, pointCount)) {
        throwDamaged(name, translated("its %1 bytes are not the %2 points that it should have",
                                      "elle a %1 octets qui ne font pas les %2 points attendus")
                               .arg(bytes.size())
                               .arg(pointCount));
    }
    TAnalysisData curve = CurveBlob::decoded(bytes);
    const QString reason = curve.whyUnusable();
    if (!reason.isEmpty()) {
        throwDamaged(name, reason);
    }
    return curve;
}

std::optional<AnalysisOrigin> AnalysisStore::origin(qint64 key) const {
    std::optional<AnalysisOrigin> found;
    m_connection.select(QStringLiteral("SELECT file, sha256, warnings FROM origins WHERE analysis_id = ?"),
                        {key}, [&found](const QSqlQuery& row) {
                            found = AnalysisOrigin{row.value(0).toString(), row.value(1).toString(),
                                                   linesOf(row.value(2).toString())};
                        });
    return found;
}

void AnalysisStore::setOrigin(qint64 key, const AnalysisOrigin& origin) {
    m_connection.execute(QStringLiteral("DELETE FROM origins WHERE analysis_id = ?"), {key});
    m_connection.execute(
        QStringLiteral("INSERT INTO origins (analysis_id, file, sha256, warnings) VALUES (?, ?, ?, ?)"),
        {key, SqlConnection::text(origin.file), SqlConnection::text(origin.sha256),
         SqlConnection::text(origin.warnings.join(QLatin1Char('\n')))});
}

QStringList AnalysisStore::problems() const {
    QStringList list;
    m_connection.select(
        QStringLiteral("SELECT a.name FROM analyses a LEFT JOIN curves c ON c.analysis_id = a.id"
                       " WHERE c.points IS NULL OR length(c.points) <> 8 * a.point_count"
                       " ORDER BY a.id"),
        {}, [&list](const QSqlQuery& row) {
            list.append(translated("The stored curve of the analysis <b>%1</b> is not whole.",
                                   "La courbe enregistrée de l'analyse <b>%1</b> est incomplète.")
                            .arg(row.value(0).toString().toHtmlEscaped()));
        });
    return list;
}

} // namespace TechDB
