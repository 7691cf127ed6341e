#pragma once

#include "VKVornObject.h"

#include <QHash>

#include <memory>
#include <vector>

/// The parameters that the application brings along: the properties that it knows by name.
class BuiltInParameters {
public:
    BuiltInParameters();

    /// By any name under which tables carry it, however it is written (TKnownProperty::plain); null if there
    /// is none.
    VKVornObject* find(const QString& name) const;

private:
    std::vector<std::unique_ptr<VKVornObject>> m_parameters;
    QHash<QString, VKVornObject*> m_byPlainName;
};
