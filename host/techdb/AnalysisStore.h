#pragma once

#include "AnalysisOrigin.h"
#include "StoredObject.h"
#include "TAnalysisData.h"

#include <QStringList>
#include <QVector>

#include <optional>

namespace TechDB {

class SqlConnection;

/// The analyses of a project as rows. Writing takes a transaction of the caller's. Failures are thrown as
/// VKError.
class AnalysisStore {
public:
    explicit AnalysisStore(SqlConnection& connection) : m_connection(connection) {}

    /// In the order of storing.
    QVector<AnalysisInfo> all() const;
    std::optional<AnalysisInfo> byName(const QString& name) const;
    std::optional<AnalysisInfo> byKey(qint64 key) const;
    /// Those that are there, in no order.
    QVector<AnalysisInfo> byKeys(const QVector<qint64>& keys) const;
    /// Those of one name, with and without a number behind it (`NumberedName`).
    QVector<AnalysisInfo> family(const QString& name) const;

    /// Refuses a curve that is not usable and a name that is taken or no name.
    qint64 add(const QString& name, const QString& analysisType, const TAnalysisData& curve);
    /// The same without the curve, which lies elsewhere.
    qint64 addInfo(const QString& name, const QString& analysisType, int pointCount);
    void rename(qint64 key, const QString& name);
    void remove(qint64 key);

    /// Refuses stored bytes that are no usable curve of the stored number of points.
    TAnalysisData curve(qint64 key) const;

    /// Nothing where it isn't known.
    std::optional<AnalysisOrigin> origin(qint64 key) const;
    /// In place of what was known before.
    void setOrigin(qint64 key, const AnalysisOrigin& origin);

    /// A sentence for each stored curve that `curve` would refuse for its size.
    QStringList problems() const;

private:
    SqlConnection& m_connection;
};

} // namespace TechDB
