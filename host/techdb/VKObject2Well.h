#pragma once

#include "VKObject2.h"

/// A stored dataset: named samples, each a table.
class VKObject2Well : public VKObject2 {
public:
    VKObject2Well(TechDB::TDatabase* db, qint64 key, const QString& name);
    ~VKObject2Well() override;

    VKObjectType type() const override;
};
