#pragma once

#include "VKObject2Analysis.h"

/// The curve of an analysis as an object of its own; it is its own `TIC`.
class VKObject2Signal : public VKObject2Analysis {
public:
    VKObject2Signal(TechDB::TDatabase* db, qint64 key, const QString& name);
    ~VKObject2Signal() override;

    VKObjectType type() const override;
    const VKObject2Signal* TIC() const override;
};
