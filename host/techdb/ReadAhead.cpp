#include "ReadAhead.h"

#include "TDatabase.h"

#include <utility>

namespace TechDB {

ReadAhead::ReadAhead(TDatabase& database) : m_database(database) {
    m_database.m_readAhead = this;
}

ReadAhead::~ReadAhead() {
    m_database.m_readAhead = nullptr;
}

const TAnalysisData& ReadAhead::curve(qint64 analysis) {
    std::unique_ptr<TAnalysisData>& kept = m_curves[analysis];
    if (!kept) {
        kept = std::make_unique<TAnalysisData>(m_database.curve(analysis));
    }
    return *kept;
}

std::unique_ptr<TAnalysisData> ReadAhead::take(qint64 analysis) {
    const auto found = m_curves.find(analysis);
    if (found == m_curves.end()) {
        return nullptr;
    }
    std::unique_ptr<TAnalysisData> curve = std::move(found->second);
    m_curves.erase(found);
    return curve;
}

} // namespace TechDB
