#pragma once

#include "VKObject2.h"

/// A compound, an EIC, a pair of both, or a parameter, as a catalogue holds it. Belongs to the catalogue
/// until that is closed, and stands in no project.
class VKVornObject : public VKObject2 {
public:
    /// The keys of built-in parameters are negative.
    VKVornObject(VKObjectType type, qint64 key, const QString& name);
    ~VKVornObject() override;

    VKObjectType type() const override { return m_type; }

private:
    VKObjectType m_type;
};
