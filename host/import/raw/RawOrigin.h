#pragma once

#include "AnalysisOrigin.h"
#include "rockeval/warning.h"

#include <QByteArray>

#include <vector>

/// Says of a raw file what a stored curve keeps of it.
class RawOrigin {
public:
    static AnalysisOrigin of(const QString& path, const QByteArray& bytes,
                             const std::vector<rockeval::Warning>& warnings);
};
