#pragma once

#include "TAnalysisData.h"

#include <QtGlobal>

#include <memory>
#include <unordered_map>

namespace TechDB {

class TDatabase;

/// Curves of one database that are looked at twice in one go: what is read here, `TDatabase::analysisData`
/// hands out without reading it again, once. Forgets the rest when it ends, before its database. One at a
/// time for a database.
class ReadAhead {
public:
    explicit ReadAhead(TDatabase& database);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// As `TDatabase::curve`. Valid until it is handed out.
    const TAnalysisData& curve(qint64 analysis);

private:
    friend class TDatabase;

    std::unique_ptr<TAnalysisData> take(qint64 analysis);

    TDatabase& m_database;
    std::unordered_map<qint64, std::unique_ptr<TAnalysisData>> m_curves;
};

} // namespace TechDB
