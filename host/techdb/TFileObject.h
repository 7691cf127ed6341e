#pragma once

#include <QString>

namespace TechDB {

/// What may lie in a file of its own.
class TFileObject {
public:
    /// Its path; empty if there is none.
    const QString& filePath() const { return m_filePath; }
    void setFilePath(const QString& path) { m_filePath = path; }

private:
    QString m_filePath;
};

} // namespace TechDB
